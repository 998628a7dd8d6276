#!/usr/bin/env bash
# The "in your project" lines of a README, run as they stand against the installed library.
#   consumir.sh README HEADING [Ory::UtilsStatic]
. "$(dirname "$0")/comum.sh"
leiame=$ORY_FONTES/$1 titulo=$2 alvo=${3:-Ory::Utils}
rm -rf "$ORY_PASTA"
mkdir -p "$ORY_PASTA"
cd "$ORY_PASTA"

cp "$ORY_FONTES/examples/primeiro/main.cpp" .
construir "$leiame" "$titulo" "$alvo"
igual "$(rodar build/meu_programa)" "$ESPERADO" "what the program prints"
