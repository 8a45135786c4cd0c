# cmake -DFROM=<Recursos of the sources> -DTO=<Recursos beside the executable> -P ...
# Pictures are always brought up to date. The problem bank is copied only where there is none:
# a person may have edited the one that is there.
file(MAKE_DIRECTORY ${TO})
file(GLOB pictures RELATIVE ${FROM} ${FROM}/*.jpg)
foreach(picture IN LISTS pictures)
  file(COPY_FILE "${FROM}/${picture}" "${TO}/${picture}" ONLY_IF_DIFFERENT)
endforeach()
if(NOT EXISTS ${TO}/Problemas3.dat)
  file(COPY_FILE ${FROM}/Problemas3.dat ${TO}/Problemas3.dat)
endif()
