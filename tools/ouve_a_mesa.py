#!/usr/bin/python3
"""Listens to Corvina through AT-SPI, as a screen reader would, on a real X server.

Starts the game with Qt's accessibility bridge on, prints the table's accessible parts (role,
name, description), then presses keys (focus, draw, discard) and prints every name, focus and
state change the bridge sends. Run it inside a D-Bus session on an X server:

    dbus-run-session -- tools/ouve_a_mesa.py ./build/shell/corvina

Needs at-spi2-core, python3-pyatspi and xdotool.
"""
import os
import subprocess
import sys
import time

import pyatspi
from gi.repository import GLib

TECLAS = ["Right", "Right", "b", "End", "Return"]


def acha_mesa(no, fundo=0):
    if no is None or fundo > 8:
        return None
    if no.name == "Mesa do Corvina":
        return no
    for i in range(no.childCount):
        achado = acha_mesa(no.getChildAtIndex(i), fundo + 1)
        if achado:
            return achado
    return None


def mostra(mesa):
    for i in range(mesa.childCount):
        p = mesa.getChildAtIndex(i)
        estados = p.getState()
        foco = " [foco]" if estados.contains(pyatspi.STATE_FOCUSED) else ""
        print(f"  {p.getRoleName():12} {p.name!r} — {p.description!r}{foco}")


def main():
    programa = sys.argv[1]
    ambiente = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_ACCESSIBILITY="1")
    jogo = subprocess.Popen([programa], env=ambiente, stdout=subprocess.DEVNULL,
                            stderr=subprocess.DEVNULL)
    try:
        time.sleep(3)
        subprocess.run(["xdotool", "key", "Return"])  # the options on a first run
        time.sleep(1)
        subprocess.run(["xdotool", "key", "Return"])  # the choice of player
        time.sleep(2)
        mesa = None
        for _ in range(20):  # the bridge registers the program a moment after it starts
            for app in pyatspi.Registry.getDesktop(0):
                if app is not None and app.name == "Corvina":
                    mesa = acha_mesa(app)
            if mesa:
                break
            time.sleep(0.5)
        if mesa is None:
            print("the table was not found in the accessible tree")
            return 1
        print("The table, as read:")
        mostra(mesa)

        def ouve(e):
            if e.source is None or e.source.getRoleName() in ("application", "frame"):
                return
            print(f"  heard {e.type}: {e.source.name!r} — {e.source.description!r}")

        for tipo in ("object:property-change:accessible-name",
                     "object:property-change:accessible-description",
                     "object:state-changed:focused", "focus:"):
            pyatspi.Registry.registerEventListener(ouve, tipo)
        fila = list(TECLAS)

        def proxima():
            if not fila:
                pyatspi.Registry.stop()
                return False
            tecla = fila.pop(0)
            print(f"key {tecla}")
            subprocess.run(["xdotool", "key", tecla])
            return True

        GLib.timeout_add(1500, proxima)
        pyatspi.Registry.start()
        print("The table, after the keys:")
        mostra(mesa)
        return 0
    finally:
        jogo.terminate()


if __name__ == "__main__":
    sys.exit(main())
