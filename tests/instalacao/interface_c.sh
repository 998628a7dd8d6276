#!/usr/bin/env bash
# The programs of docs/c.md, run as they stand against the installed interface for C.
. "$(dirname "$0")/comum.sh"
rm -rf "$ORY_PASTA"
mkdir -p "$ORY_PASTA"
cd "$ORY_PASTA"
doc=$ORY_FONTES/docs/c.md
esperado=$(bloco "$doc" text 1)
bloco "$doc" c 1 > programa.c
if [ "$ORY_SISTEMA" = windows ]; then
    x86_64-w64-mingw32-gcc-posix -std=c99 -Wall -Wextra -Werror programa.c -o programa.exe -I"$ORY_PREFIXO/include" -L"$ORY_PREFIXO/lib" -lOryUtilsC
else
    bloco "$doc" sh 1 > construir.sh
    HOME=$ORY_CASA bash -euo pipefail construir.sh
fi
igual "$(rodar ./programa)" "$esperado" "what the C program prints"
if [ "$ORY_SISTEMA" = linux ] && command -v python3 > /dev/null; then
    bloco "$doc" python 1 > programa.py
    igual "$(rodar python3 programa.py)" "$esperado" "what the Python program prints"
fi
