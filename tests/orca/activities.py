"""Each activity as a pupil who cannot see plays it: by keys alone, from what is heard. Every
answer is worked out from the words of the reader, so that a word too few ends the walk."""


def repeated_sum(pupil):
    pupil.open("Suma repetida", names=["Primer factor", "Segundo factor", "Hecho", "Continuar"])
    sum_of = r"(\d+)((?: más \1)+)"
    pupil.exercise(sum_of)
    pupil.does("1", "Tab", "1", "Return", says=["Respuesta incorrecta"])
    pupil.does("Return", says=["Respuesta incorrecta"])  # again, though nothing has changed
    solution = pupil.does("alt+v", says=[r"(\d+) por (\d+)"], also=["Ver solución"])[0]
    addend, times = (int(number) for number in solution.groups())
    assert pupil.heard_exercise.group().split().count(str(addend)) == times
    sum_heard = pupil.goes_on("alt+c", sum_of)
    addend = sum_heard.group(1)
    times = sum_heard.group().split().count(addend)
    pupil.does(*addend, "Tab", *str(times), "Return", says=["Respuesta correcta"])
    pupil.goes_on("space", sum_of)


def gap(pupil):
    pupil.open("Completa el hueco", names=["Segundo factor, el que falta", "Hecho", "Continuar"])
    gap_in = r"hueco: (\d+) por … igual a (\d+)"
    factor, product = (int(number) for number in pupil.exercise(gap_in).groups())
    missing = product // factor
    pupil.does(*str(missing + 1), "Return", says=["Respuesta incorrecta"])
    pupil.does("Return", says=["Respuesta incorrecta"])
    pupil.does("alt+v", says=[f"{factor} por {missing} igual a {product}"])
    factor, product = (int(number) for number in pupil.goes_on("alt+c", gap_in).groups())
    pupil.does(*str(product // factor), "Return", says=["Respuesta correcta"])
    pupil.goes_on("space", gap_in)


def tables(pupil):
    pupil.open("Tablas de multiplicar", names=["Primera mitad de la tabla", "Respuesta",
                                               "Siguiente actividad", "Tabla del 1", "1x 1 = 1"])
    pupil.exercise(r"Tabla del 1: 1 por 1, 1; .*; 1 por 10, 10")
    question = pupil.goes_on("alt+a", r"(\d+) por (\d+)")
    a, b = (int(number) for number in question.groups())
    pupil.does("9", "9", "Return", says=["resultado incorrecto"])
    pupil.does("Return", says=["resultado incorrecto"])
    pupil.does("alt+v", says=[f"{a} por {b} igual a {a * b}"], also=["selected"])
    pupil.goes_on("Return", f"{a} por {b + 1}", before=["Resultado correcto"],
                  also=["Selection deleted"])


ALL = [repeated_sum, tables, gap]
