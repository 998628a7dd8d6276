#!/usr/bin/env bash
# The line without CMake of both READMEs, run as it stands.
. "$(dirname "$0")/comum.sh"
rm -rf "$ORY_PASTA"
mkdir -p "$ORY_PASTA"
cd "$ORY_PASTA"
cp "$ORY_FONTES/examples/primeiro/main.cpp" .
bloco "$ORY_FONTES/README.md" sh 4 "## In your project" > um.sh
bloco "$ORY_FONTES/README.pt-BR.md" sh 4 "## No seu projeto" > outro.sh
igual "$(cat outro.sh)" "$(cat um.sh)" "both READMEs say the same"
HOME=$ORY_CASA bash -euo pipefail um.sh
igual "$(rodar ./meu_programa)" "$ESPERADO" "what the program prints"
igual "$(bloco "$ORY_FONTES/README.md" cpp 1 "## A first program")" "$(cat main.cpp)" "the README's program is the example"
