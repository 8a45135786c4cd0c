"""Each activity as a pupil who cannot see plays it: by keys alone, from what is heard. Every
answer is worked out from the words of the reader, so that a word too few ends the walk."""

from games import race, rain

# Of a group whose caption has been said, newer readers say that its options are a list.
OPTIONS = ["list"]


def repeated_sum(pupil):
    pupil.open("Suma repetida", names=["SUMA REPETIDA", "Primer factor", "Segundo factor", "Hecho", "Continuar"])
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
    pupil.close()


def gap(pupil):
    pupil.open("Completa el hueco", names=["Segundo factor, el que falta", "Hecho", "Continuar"])
    gap_in = r"hueco: (\d+) por … igual a (\d+)"
    factor, product = (int(number) for number in pupil.exercise(gap_in).groups())
    missing = product // factor
    pupil.does(*str(missing + 1), "Return", says=["Respuesta incorrecta"])
    pupil.does("Return", says=["Respuesta incorrecta"])
    pupil.does("alt+v", says=[f"{factor} por {missing} igual a {product}"])
    factor, product = (int(number) for number in pupil.goes_on("alt+c", gap_in).groups())
    # The reader looks at the digits before they are typed: "Hecho" waits for them.
    pupil.does(*str(product // factor), "alt+h", says=["Respuesta correcta"])
    pupil.goes_on("alt+c", gap_in)
    pupil.close()


def tables(pupil):
    pupil.open("Tablas de multiplicar", names=["Primera mitad de la tabla", "Respuesta",
                                               "Siguiente actividad", "Tabla del 1", "1x 1 = 1"])
    pupil.exercise(r"Tabla del 1: 1 por 1, 1; .*; 1 por 10, 10")
    question = pupil.goes_on("alt+a", r"(\d+) por (\d+)")
    a, b = (int(number) for number in question.groups())
    pupil.does("9", "9", "Return", says=["resultado incorrecto"])
    pupil.does("Return", says=["resultado incorrecto"])
    pupil.does("alt+v", says=[f"{a} por {b} igual a {a * b}"])
    pupil.goes_on("Return", f"{a} por {b + 1}", before=["Resultado correcto"])
    pupil.close()


def quick_tables(pupil):
    """Whoever takes more than ten seconds is told so, and gets another operation."""
    pupil.open("Tablas rápidas", names=["TABLAS RÁPIDAS", "Empezar", "Respuesta", "Salir"])
    pupil.exercise("Escribe el resultado correcto y pulsa enter")
    operation = r"(\d+) por (\d+)"
    pupil.press("alt+e")
    pupil.hears(operation)
    pupil.press("F2")
    pupil.hears(operation, "Tiempo agotado", "MAL", operation)
    pupil.press("0", "Return")
    a, b = (int(number) for number in pupil.hears("MAL", operation).groups())
    while True:
        pupil.press(*str(a * b), "Return")
        a, b = (int(number) for number in pupil.hears("BIEN|MAL", operation).groups())
        if pupil.desk.passed[-2] == "BIEN":
            break
    pupil.press("alt+s")
    hear_report(pupil, r".*Errores por tiempo: [1-9].*")
    quick_tables_to_a_limit(pupil)


def quick_tables_to_a_limit(pupil):
    """Two errors, then the report comes by itself."""
    pupil.open("Tablas rápidas", names=[])
    pupil.hears("Empezar (?:push )?button.*", "Escribe el resultado correcto y pulsa enter")
    pupil.press("shift+Tab")
    pupil.hears("Acabar la actividad panel")
    pupil.hears_whole("Al pulsar Salir selected radio button", before=OPTIONS)
    for option in ("Tiempo", "Operaciones", "Errores"):
        pupil.press("Down")
        pupil.hears_whole(f"{option} selected radio button")
    pupil.press("Tab")
    pupil.hears("Límite.*")
    pupil.press("2", "Tab")
    pupil.hears("Empezar (?:push )?button.*")
    pupil.press("space")
    operation = r"(\d+) por (\d+)"
    pupil.hears(operation)
    pupil.press("Return")
    pupil.hears("MAL", operation)
    pupil.press("Return")
    hear_report(pupil, r"Número de operaciones: \d\. Número total de errores: 2\..*")


def hear_report(pupil, report):
    pupil.hears("alert Pizarrin", report, "Aceptar (?:push )?button.*")
    pupil.press("Return")
    pupil.back_at_the_menu()


def multiples(pupil):
    pupil.open("Múltiplos y divisores", names=[
        "Respuesta", "Hecho", "Ver solución", "Continuar"])
    asked = r"Introduzca tres (múltiplos|divisores) diferentes .*: (\d+)"
    pupil.exercise(asked)
    pupil.does("1", "Tab", "1", "Tab", "1", "Return", says=["Resultado incorrecto"])
    pupil.does("Return", says=["Resultado incorrecto"])
    pupil.does("alt+v", says=[r"Solución: \d+, \d+ y \d+"])
    kind, number = "", 0
    while True:  # some numbers have no three divisors of their own: the pupil goes on
        kind, number = pupil.goes_on("alt+c", asked).groups()
        number = int(number)
        own = [n for n in range(2, number) if number % n == 0]
        answers = [2 * number, 3 * number, 4 * number] if kind == "múltiplos" else own[:3]
        if len(answers) == 3:
            break
    keys = [key for answer in answers for key in (*str(answer), "Tab")][:-1]
    pupil.does(*keys, "Return", says=["Resultado correcto"])
    pupil.goes_on("alt+c", asked)
    pupil.close()


def multiplication(pupil):
    pupil.open("Multiplicaciones", names=["Producto parcial", "Resultado text", "Hecho", "Continuar"])
    factors = r"(\d+) por (\d+)"
    a, b = (int(number) for number in pupil.exercise(factors, also=["unidades"]).groups())
    pupil.does("1", says=["decenas"])
    pupil.does("shift", says=[f"{a % 10} por {b % 10}"])
    pupil.does("Tab", says=["Producto parcial 2.*", "unidades"], also=["desde las unidades"])
    pupil.does("alt+h", says=["resultado incorrecto", "filas equivocadas: 1 y 2"])
    pupil.does("alt+h", says=["resultado incorrecto", "filas equivocadas: 1 y 2"])
    pupil.does("alt+v", says=[f"Solución: {a * b}"])
    a, b = (int(number) for number in pupil.goes_on("alt+c", factors, also=UNTIL_READY).groups())
    for row in range(2, len(str(b)) + 1):
        pupil.does("Tab", says=[f"Producto parcial {row}.*"], also=UNTIL_READY)
    pupil.does("Tab", says=["Resultado text.*"], also=UNTIL_READY)
    pupil.does(*reversed(str(a * b)), "Return", says=["Resultado correcto"], also=PLACES)
    pupil.goes_on("space", factors, also=UNTIL_READY)
    pupil.close()


def division(pupil):
    pupil.open("Divisiones", names=["DIVISIONES", "Dividendo y cuentas", "Cociente", "Hecho", "Ver solucióm",
                                    "Continuar"])
    asked = r"(\d+) entre (\d+)"
    first_square = r"línea 1; del dividendo, \d"
    dividend, divisor = pupil.exercise(asked, also=[first_square]).groups()
    pupil.does("1", "Down", says=[f"línea 2; encima, 1; del dividendo, {dividend[0]}"])
    pupil.does("alt+h", says=["Resultado incorrecto"])
    pupil.does("alt+h", says=["Resultado incorrecto"])
    quotient, rest = divmod(int(dividend), int(divisor))
    pupil.does("alt+v", says=[f"Solución: cociente {quotient}, resto {rest}"])
    dividend, divisor = pupil.goes_on("alt+c", asked, also=[first_square]).groups()
    quotient, rest = divmod(int(dividend), int(divisor))
    for digit in str(rest):
        pupil.does(digit, "Right", says=["línea 1.*"])
    pupil.does("Tab", says=["Divisor read only text", divisor])
    pupil.does("Tab", says=["Cociente.*"])
    pupil.does(*str(quotient), "alt+h", says=["resultado correcto"])
    pupil.goes_on("alt+c", asked, also=[first_square])
    pupil.close()


def problems(pupil):
    pupil.open("Problemas", names=["Respuesta", "Hecho", "Ver solución", "Continuar"])
    statement = r".+\?(?: Respuesta en (.+))?"  # a year and a floor have none
    pupil.exercise(statement)
    pupil.does("minus", "1", "Return", says=["Respuesta incorrecta"])
    pupil.does("Return", says=["Respuesta incorrecta"])
    unit = pupil.heard_exercise.group(1)
    solution = rf"(\d+) {unit}" if unit else r"(\d+)"
    answer = pupil.does("alt+v", says=[solution])[0].group(1)
    pupil.does("alt+b", *answer, "Return", says=["Respuesta correcta"])
    pupil.goes_on("alt+c", statement)
    select_problems(pupil)
    pupil.close()


def select_problems(pupil):
    """The dialog for the teacher: each group is said once, on the way in."""
    pupil.press("alt+o")
    pupil.hears("Gestión de problemas.*")
    pupil.press("s")
    pupil.hears("Seleccionar problemas.*")
    pupil.press("Return")
    pupil.hears(".*Todos los tipos.*")
    pupil.press("Tab")
    pupil.hears("Operaciones panel", "Multiplicaciones check box.*")
    pupil.press("shift+Tab")
    pupil.hears("Tipo de problemas panel")
    pupil.hears_whole("Todos los tipos not selected radio button", before=OPTIONS)
    pupil.press("alt+F4")
    pupil.hears(r".+\?(?: Respuesta en .+)?")


def combined(pupil):
    pupil.open("Operaciones combinadas", names=[
        "Resultado text", "Hecho", "Ver Solución", "Continuar"])
    operation = r"(?=.*\d.*\d).* (?:más|menos|por|entre) .*"
    result = value_of(pupil.exercise(operation).group())
    pupil.does(*str(result + 1), "Return", says=["Resultado incorrecto"])
    pupil.does("Return", says=["Resultado incorrecto"])
    pupil.does("alt+v", says=[f"Solución: {result}"])
    result = value_of(pupil.goes_on("alt+c", operation).group())
    pupil.does(*str(result), "Return", says=["Resultado correcto"])
    pupil.goes_on("alt+c", operation)
    pupil.close()


def value_of(spoken):
    """Of an operation in words; its quotients are whole."""
    signs = {"más": "+", "menos": "-", "por": "*", "entre": "//"}
    spoken = spoken.replace("abre paréntesis", "(").replace("cierra paréntesis", ")")
    return eval(" ".join(signs.get(word, word) for word in spoken.split()), {})


PLACES = ["unidades", "decenas", "centenas"]
UNTIL_READY = ["desde las unidades", "F2 repite", "unidades"]

ALL = [repeated_sum, tables, quick_tables, gap, multiples, multiplication, division, problems,
       combined, rain, race]
