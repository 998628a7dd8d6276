#!/usr/bin/env bash
# The "in your project" lines of a README, run as they stand against the installed library.
#   consumir.sh README HEADING [Ory::UtilsStatic]
. "$(dirname "$0")/comum.sh"
leiame=$ORY_FONTES/$1 titulo=$2 alvo=${3:-Ory::Utils}
rm -rf "$ORY_PASTA"
mkdir -p "$ORY_PASTA"
cd "$ORY_PASTA"

cp "$ORY_FONTES/examples/primeiro/main.cpp" .
bloco "$leiame" cmake 1 "$titulo" | sed "s/Ory::Utils)/$alvo)/" > CMakeLists.txt
grep -qF "$alvo)" CMakeLists.txt || falhar "the block does not link $alvo"
if [ "$ORY_SISTEMA" = windows ]; then comandos=2; else comandos=1; fi
bloco "$leiame" sh $((comandos + 1)) "$titulo" | sed "s|oryutils-fontes|$ORY_FONTES|g" > construir.sh
grep -q "cmake" construir.sh || falhar "the block does not build"
HOME=$ORY_CASA bash -euo pipefail construir.sh > saida.log 2>&1 || falhar "$(cat construir.sh saida.log)"
igual "$(rodar build/meu_programa)" "$ESPERADO" "what the program prints"
