"""The games as a pupil who cannot see plays them: against the clock, so that what is heard may be
past already when it is answered."""

import re
import time

NOTICE = 0.3  # seconds: a key sooner than 0.25 after a number has taken the focus was for another
ACCEPT = "Aceptar (?:push )?button.*"
START = "EMPEZAR (?:push )?button.*"


def rain(pupil):
    """A hit, a miss, on to the next phase; then a difficult game, lost with folded arms."""
    pupil.open("Lluvia de números", names=["EMPEZAR"])
    game = Rain(pupil, pupil.exercise("Elimina los números impares.*").group())
    pupil.press("space")
    game.plays(True, "Acierto 1")
    game.plays(False, "Error")
    game.plays(True, "alert FASE SUPERADA")
    game.goes_on()
    pupil.press("F2")
    pupil.hears("Elimina todos los .*")
    pupil.press("alt+o", "d")
    game.rule = pupil.hears("Elimina los números impares.*").group()
    pupil.press("space")
    game.plays(None, "alert GAME OVER")
    pupil.hears(r"En esta partida has conseguido \d+ puntos.*", "Sí (?:push )?button.*")
    pupil.answer_box("Tab")
    pupil.hears("No (?:push )?button.*")
    pupil.press("Return")
    pupil.back_at_the_menu()


class Rain:
    """A number that is heard late may have gone, or another may have come: then something else
    is hit, or nothing, and the boxes come when they come."""

    def __init__(self, pupil, rule):
        self.pupil = pupil
        self.rule = rule

    def plays(self, targets, end):
        """Hits the numbers that are to be eliminated, or those that are not, or none, until the
        reader says this."""
        boxes = {"FASE SUPERADA": self.goes_on, "Lluvia de números": self.loses_a_life,
                 "GAME OVER": self.begins_again}
        while True:
            heard = self.pupil.hears(rf"(\d+) (?:push )?button.*|alert (.*)|{end}")
            number, box = heard.groups()
            if re.fullmatch(end, heard.group()):
                return
            if box is not None:
                boxes[box]()
            elif self.is_target(int(number)) == targets:
                time.sleep(NOTICE)
                self.pupil.press("space")

    def is_target(self, number):
        multiples = re.search(r"múltiplos de (\d+)", self.rule)
        if multiples:
            return number % int(multiples.group(1)) == 0
        return number % 2 == (1 if "impares" in self.rule else 0)

    def goes_on(self):
        self.pupil.hears(r"Ha superado la fase \d+\. En esta fase ha conseguido \d+ puntos.*", ACCEPT)
        self.pupil.press("Return")
        self.rule = self.pupil.hears("Elimina todos los .*").group()
        self.pupil.press("space")

    def loses_a_life(self):
        self.pupil.hears(".*pierdes una vida.*", ACCEPT, "Vidas: [12]")
        self.pupil.answer_box("Return")
        self.pupil.hears(START)
        self.pupil.press("space")

    def begins_again(self):
        self.pupil.hears("Sí (?:push )?button.*")
        self.pupil.answer_box("Return")
        self.rule = self.pupil.hears("Elimina .*").group()
        self.pupil.press("space")


def race(pupil):
    """A wrong answer and a right one, a race lost, and another one to its end."""
    pupil.open("La gran carrera", names=[])
    choose_cars(pupil)
    pupil.names = ["La gran carrera", "Resultado", "Respuesta"]
    operation = r"(\d+) por (\d+)"
    a, b = (int(number) for number in pupil.exercise(operation).groups())
    for _ in range(4):  # no clock runs before the first right one
        pupil.does("1", "Return", says=["Error"])
    pupil.press(*str(a * b))
    pupil.goes_on("Return", operation, before=["Correcto", r"Tú: 1 de 15\. Rival: \d+ de 15"])
    pupil.hears("alert La gran carrera", r"tu adversario ha ganado la carrera\. .* segundos",
                ACCEPT)  # without a hand on the keyboard
    pupil.answer_box("Return")
    pupil.hears("Pista.*")
    pupil.press("F2")
    pupil.hears("La carrera ha terminado. Pulsa en uno de los botones inferiores")
    pupil.press("alt+r")
    end = "alert La gran carrera"
    for _ in range(15):
        heard = pupil.hears(f"{operation}|{end}")
        if heard.group() == end:
            break
        pupil.press(*str(int(heard.group(1)) * int(heard.group(2))), "Return")
    else:
        pupil.hears(end)
    pupil.hears(r"(?:Has ganado|tu adversario ha ganado) la carrera\. .* segundos", ACCEPT)
    pupil.answer_box("Return")
    pupil.hears("Pista.*")
    pupil.close()


def choose_cars(pupil):
    """The rival's is the slowest one."""
    pupil.hears("Selecciona tu coche.*")
    pupil.press("Tab")
    pupil.hears("Selecciona el coche de tu rival.*")
    pupil.press("End")
    pupil.hears("Fórmula 1.*")
    pupil.press("Tab")
    pupil.hears("Selecciona el tipo de carrera.*")
    pupil.press("Tab")
    pupil.hears(ACCEPT)
    pupil.press("space")
