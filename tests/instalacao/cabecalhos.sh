#!/usr/bin/env bash
# Every installed header compiles alone, without a warning, and none is a room's own.
#   cabecalhos.sh C++COMPILER CCOMPILER [FOLDER:FOLDER...]     those of Qt's headers
. "$(dirname "$0")/comum.sh"
cxx=$1 cc=$2
shift 2
raiz=$ORY_PREFIXO/include
cd "$raiz"
proprios=$(find . -path '*/interno/*' -o -path '*/linux/*' -o -path '*/windows/*' -o -name '*.cpp' -o -type d -empty)
igual "$proprios" "" "what a user must not see is not installed"
proprios=$(find oryutils/platform oryutils/readers -name '*.hpp' | sort | xargs -n 1 basename | tr '\n' ' ')
igual "$proprios" "AlcaDeProcesso.hpp Console.hpp Registro.hpp BuscaIni.hpp DadoRegistro.hpp " "what public headers include"
for esperado in oryutils/OryExport.hpp oryutils/text/OryUtilsStrings.hpp oryutils/types/OryTypesSistema.hpp oryutils/c/oryutils.h; do
    [ -f $esperado ] || falhar "$esperado is not installed"
done

qt=
# Not the system's own folder among them, which must stay the last one.
for pasta in $(tr ': ' '\n\n' <<< "$*" | grep /qt6 | sort -u); do qt+=" -isystem $pasta"; done
export cxx raiz opcoes="-std=c++20 -fsyntax-only -Wall -Wextra -Wpedantic -Wshadow -Werror -I$raiz -I$raiz/oryutils-qt$qt"
sozinho() { echo "#include \"$1\"" | $cxx $opcoes -x c++ - || { echo "FAILED: $1 does not compile alone" >&2; return 1; }; }
export -f sozinho
lista() {
    find . -name '*.hpp' | sed 's|^\./||; s|^oryutils-qt/||' | if [ "$ORY_SISTEMA" = windows ]; then grep win32/; else cat; fi
}
lista | xargs -P 2 -I{} bash -c 'sozinho {}'
# Another processor is refused in words, before anything else.
outro=$(echo '#include "oryutils/OryExport.hpp"' | $cxx -U__x86_64__ $opcoes -x c++ - 2>&1 || true)
[[ $outro == *"x86-64 processors alone"* ]] || falhar "another processor is not refused: $outro"
# Whoever includes a header alone may catch what its operations raise.
apanha() {
    printf '#include "%s"\nvoid F();\nvoid F() { try { F(); } catch (const OryUtils::Exception&) {} }\n' "$1" |
        $cxx $opcoes -x c++ - || { echo "FAILED: $1 tells what is raised and does not bring Exception" >&2; return 1; }
}
export -f apanha
# The sibling library stands below the exceptions.
quem_levanta() { find . -name '*.hpp' -exec grep -lE '\b([Rr]aises?|E[A-Z][A-Za-z]*(Error|Exception))\b' {} +; }
quem_levanta | sed 's|^\./||; s|^oryutils-qt/||' | grep -v '^oryutils/types/' |
    if [ "$ORY_SISTEMA" = windows ]; then grep win32/ || true; else cat; fi | xargs -r -P 2 -I{} bash -c 'apanha {}'
# All of them together.
find . -name '*.hpp' | sed 's|^\./||; s|^oryutils-qt/||; s|.*|#include "&"|' | $cxx $opcoes -x c++ -
for padrao in c89 c99 c17; do
    echo '#include "oryutils/c/oryutils.h"' | $cc -std=$padrao -pedantic -Wall -Wextra -Werror -fsyntax-only -I"$raiz" -x c -
done
echo '#include "oryutils/c/oryutils.h"' | $cxx $opcoes -x c++ -
