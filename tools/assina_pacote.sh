#!/usr/bin/env bash
# Signs a release of Corvina for the online update, and writes the update server's answer.
#
#   tools/assina_pacote.sh chave PASTA
#       makes a new Ed25519 key pair in PASTA (corvina-update.pem, readable by its owner only)
#       and prints the public key: build the game with -DCORVINA_CHAVE_PUBLICA=<that>.
#       Keep the .pem out of the repository and away from the update server.
#   tools/assina_pacote.sh publica CHAVE.pem
#       prints the public key of an existing key.
#   tools/assina_pacote.sh assina CHAVE.pem PACOTE.deb VERSAO URL
#       prints the line the server answers to update.php?prog=Corvina:
#       !*!Corvina!*!VERSAO!*!URL!*!SIGNATURE!*!
set -euo pipefail

publica() { openssl pkey -in "$1" -pubout -outform DER | tail -c 32 | od -An -tx1 | tr -d ' \n'; echo; }

case "${1:-}" in
chave)
  pasta=$2
  umask 077
  mkdir -p "$pasta"
  openssl genpkey -algorithm ed25519 -out "$pasta/corvina-update.pem"
  publica "$pasta/corvina-update.pem"
  ;;
publica)
  publica "$2"
  ;;
assina)
  chave=$2 pacote=$3 versao=$4 url=$5
  case "$url" in https://*) ;; *) echo "the URL must be https" >&2; exit 2 ;; esac
  case "$versao" in *[!0-9.]* | .* | *. | *..*) echo "the version is three numbers: 3.8.0" >&2; exit 2 ;; esac
  # What is signed names the version with the package's SHA-512: an older package, signed in
  # its day, can't be offered as a newer one.
  resumo=$(sha512sum "$pacote" | cut -d' ' -f1)
  declaracao=$(mktemp)
  trap 'rm -f "$declaracao"' EXIT
  printf 'Corvina %s\nsha512 %s\n' "$versao" "$resumo" >"$declaracao"
  assinatura=$(openssl pkeyutl -sign -rawin -inkey "$chave" -in "$declaracao" | base64 -w0)
  printf '!*!Corvina!*!%s!*!%s!*!%s!*!\n' "$versao" "$url" "$assinatura"
  ;;
*)
  sed -n '2,14p' "$0" >&2
  exit 2
  ;;
esac
