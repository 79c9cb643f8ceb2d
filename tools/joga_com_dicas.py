#!/usr/bin/env python3
"""Plays whole matches of Corvina on a real X server by following the game's own hint.

Each turn it presses D, finds the gold ring the hint draws on a screenshot, and clicks the
stock or the pile, or drags the ringed card off the row; the final-score window is closed
with its OK, and the choice of player at the end of a match with Enter. It stops when the
player's record counts one more match. Needs Xvfb (or any X server), xdotool and ImageMagick.

    tools/joga_com_dicas.py ./build/shell/corvina classico|esperto|forte [pasta-das-fotos]
"""
import os
import re
import subprocess
import sys
import time

OURO = "#FAD65A"
JANELA = (800, 600)


def x(*args):
    return subprocess.run(["xdotool", *args], check=False, capture_output=True, text=True)


def canto_da_janela():
    saida = x("search", "--onlyvisible", "--name", "^Corvina$").stdout.split()
    for w in saida:
        geo = x("getwindowgeometry", w).stdout
        m = re.search(r"Position: (\d+),(\d+).*Geometry: (\d+)x(\d+)", geo, re.S)
        if m and (int(m[3]), int(m[4])) == JANELA:
            return int(m[1]), int(m[2])
    return None


def ouro(foto, area):
    """Bounding box of the ring's gold inside area (x, y, w, h) of the window."""
    ax, ay, aw, ah = area
    txt = subprocess.run(["convert", foto, "-crop", f"{aw}x{ah}+{ax}+{ay}", "+repage", "txt:-"],
                         capture_output=True, text=True).stdout
    pts = [(int(a), int(b)) for a, b in re.findall(r"^(\d+),(\d+):.*" + OURO, txt, re.M | re.I)]
    if len(pts) < 20:
        return None
    xs, ys = [p[0] for p in pts], [p[1] for p in pts]
    return ax + min(xs), ay + min(ys), ax + max(xs), ay + max(ys)


def registro(conf, nome="Jogador"):
    """Matches won and lost in the player's record, as the settings file holds them."""
    try:
        texto = open(conf, encoding="utf-8").read()
    except OSError:
        return 0
    valores = re.findall("^" + re.escape(nome) + r"\\(?:vitorias|derrotas)=(-?\d+)", texto,
                         re.M | re.I)
    return sum(int(v) for v in valores)


def nivel_guardado(conf, nome="Jogador"):
    try:
        texto = open(conf, encoding="utf-8").read()
    except OSError:
        return ""
    m = re.search("^" + re.escape(nome) + r"\\nivel=(\w+)", texto, re.M | re.I)
    return m[1] if m else ""


def main():
    programa, nivel = sys.argv[1], sys.argv[2]
    fotos = sys.argv[3] if len(sys.argv) > 3 else "/tmp"
    conf = os.path.join(os.environ.get("XDG_CONFIG_HOME", os.path.expanduser("~/.config")),
                        "Lunaris", "Corvina.ini")
    jogo = subprocess.Popen([programa], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    time.sleep(3)
    x("key", "Return")  # the options on a first run, or the choice of player
    time.sleep(1)
    x("key", "Return")
    time.sleep(1.5)
    antes = registro(conf)
    # The level window: N, the level's first letter, Enter; the store tells when it took.
    for _ in range(10):
        if nivel_guardado(conf) == nivel:
            break
        x("key", "Escape")
        x("key", "n")
        time.sleep(1)
        x("key", {"classico": "c", "esperto": "e", "forte": "f"}[nivel])
        x("key", "Return")
        time.sleep(1)
    else:
        print(f"{nivel}: the level window did not take the choice")
        jogo.terminate()
        return 1
    foto = os.path.join(fotos, f"partida-{nivel}.png")
    jogadas = 0
    for _ in range(800):
        if registro(conf) > antes:
            break
        canto = canto_da_janela()
        if not canto:
            time.sleep(0.5)
            continue
        cx, cy = canto
        x("key", "d")
        time.sleep(0.6)
        subprocess.run(["import", "-window", "root", "-crop", f"800x600+{cx}+{cy}", "+repage",
                        foto], check=False)
        mesa = ouro(foto, (240, 265, 330, 150))   # the stock and the pile
        fileira = ouro(foto, (25, 445, 760, 120))  # the player's row
        if mesa:
            x("mousemove", str(cx + (mesa[0] + mesa[2]) // 2), str(cy + (mesa[1] + mesa[3]) // 2),
              "click", "1")
            jogadas += 1
        elif fileira:
            px, py = cx + (fileira[0] + fileira[2]) // 2, cy + (fileira[1] + fileira[3]) // 2
            x("mousemove", str(px), str(py), "mousedown", "1")
            for passo in range(1, 6):
                x("mousemove", str(px - 10 * passo), str(py - 25 * passo))
                time.sleep(0.05)
            x("mouseup", "1")
            jogadas += 1
        else:
            # A window over the table: the final score's OK, or Enter in the choice of player.
            x("mousemove", str(cx + 400 - 172 + 292), str(cy + 300 - 88 + 148), "click", "1")
            time.sleep(0.3)
            x("key", "Return")
        time.sleep(1.2)
    depois = registro(conf)
    jogo.terminate()
    print(f"{nivel}: {jogadas} moves by the hint, matches in the record {antes} -> {depois}")
    return 0 if depois > antes else 1


if __name__ == "__main__":
    sys.exit(main())
