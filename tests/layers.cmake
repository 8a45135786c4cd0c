# Fails when the models' library could see the GUI: by what it links or by what it includes.
# LIBS, SOURCES: those of the library, separated by semicolons.
if(LIBS MATCHES "Gui|Widgets")
  message(FATAL_ERROR "pizarrin_core links ${LIBS}")
endif()
set(forbidden "ui/|_screen|QtGui|QtWidgets|QWidget|QTimer|QElapsedTimer|QRandomGenerator|QDateTime|QTime>|chrono>|ctime>|random>")
# The one place for the clock and for the generator.
set(allowed "core/(clock|random)\\.h")
foreach(source ${SOURCES})
  string(REGEX REPLACE "\\.cpp$" ".h" header ${source})
  foreach(file ${source} ${header})
    if(EXISTS ${file} AND NOT file MATCHES ${allowed})
      file(STRINGS ${file} hits REGEX "#include [<\"].*(${forbidden})")
      if(hits)
        message(FATAL_ERROR "${file}: ${hits}")
      endif()
    endif()
  endforeach()
endforeach()
