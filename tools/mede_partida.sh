#!/usr/bin/env bash
# Measures, from outside the process, on a real X server (Xvfb), how long after its start a
# bare 800x600 Qt window is on the screen, and how long after the splash's second (from the
# splash on the screen) the table of Corvina is. Usage: tools/mede_partida.sh [build] [runs]
set -euo pipefail
build="${1:-build}"
vezes="${2:-5}"
tela=:93
Xvfb "$tela" -screen 0 1280x1024x24 >/dev/null 2>&1 &
xvfb=$!
casa="$(mktemp -d)"
trap 'kill $xvfb 2>/dev/null; rm -rf "$casa"' EXIT
sleep 1
export DISPLAY=$tela

agora() { date +%s%N; }
# Nanoseconds on the clock when a mapped window of this size stands on the screen.
espera_janela() {
  until xwininfo -root -tree 2>/dev/null | grep -q " $1+"; do :; done
  agora
}

# A first run leaves the options and the choice of player behind, so the table comes up as on
# any later day.
mkdir -p "$casa/.config/Lunaris"
printf '[corvina]\nwe=1\nJogador1=Ana\nUltimoJogador=Ana\n' >"$casa/.config/Lunaris/Corvina.ini"

for i in $(seq "$vezes"); do
  inicio=$(agora)
  "$build/tools/mede_partida/corvina-janela-nua" &
  pid=$!
  nua=$(( ($(espera_janela 800x600) - inicio) / 1000000 ))
  kill $pid; wait $pid 2>/dev/null || true

  inicio=$(agora)
  HOME="$casa" XDG_CONFIG_HOME="$casa/.config" "$build/shell/corvina" >/dev/null 2>&1 &
  pid=$!
  splash=$(espera_janela 500x160)
  mesa=$(espera_janela 800x600)
  kill $pid; wait $pid 2>/dev/null || true
  depois=$(( (mesa - splash) / 1000000 - 1000 ))
  echo "run $i: bare window ${nua} ms after its start; splash $(( (splash - inicio) / 1000000 )) ms" \
       "after the start; table ${depois} ms after the splash's second"
done
