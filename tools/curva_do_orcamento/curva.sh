#!/usr/bin/env bash
# The hint's search playing every move ("busca" in the arena) against Esperto at 1, 5, 20, 50
# and 200 ms a decision, on mirrored deals, and the curve of its share with its 95% interval.
# PARES pairs a point (200 unless set; half that at 200 ms, whose run is four times longer).
#   bash tools/curva_do_orcamento/curva.sh docs/curva-do-orcamento.png
set -euo pipefail
cd "$(dirname "$0")/../.."
saida="${1:?usage: curva.sh <out.png>}"
pares="${PARES:-200}"
cli=./build/cli/corvina-cli
desenha=./build/tools/curva_do_orcamento/corvina-desenha-curva
pontos="$(mktemp)"
trap 'rm -f "$pontos"' EXIT
for ms in 1 5 20 50 200; do
  n="$pares"
  [ "$ms" -ge 200 ] && n=$((pares / 2))
  echo "{\"op\":\"arena\",\"a\":\"busca\",\"ms\":$ms,\"b\":\"esperto\",\"pairs\":$n,\"seed\":2026,\"threads\":$(nproc)}" \
    | "$cli" 2>/dev/null \
    | python3 -c "import json,sys; r=json.load(sys.stdin); print($ms, r['shareA'], r['ciLow'], r['ciHigh'], r['handsA']+r['handsB'])" \
    | tee -a "$pontos"
done
QT_QPA_PLATFORM=offscreen "$desenha" "The search against Esperto, by its time a decision" "$saida" < "$pontos"
