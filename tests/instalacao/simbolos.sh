#!/usr/bin/env bash
# Holds what a shared library exports against what the installed headers declare, both ways.
#   simbolos.sh LIBRARY NM-OR-OBJDUMP MACRO FOLDER...      MACRO marks what FOLDER's headers make public
#   simbolos.sh LIBRARY NM-OR-OBJDUMP -- NAME...           exactly these names
. "$(dirname "$0")/comum.sh"
biblioteca=$1 ferramenta=$2
shift 2
case $biblioteca in
    *.dll) "$ferramenta" -p "$biblioteca" | awk '/^\[Ordinal\/Name Pointer\] Table/ { t = 1 } t && /^\t\[/ { print $NF }' ;;
    *) "$ferramenta" -D --defined-only "$biblioteca" | awk '{ print $NF }' ;;
esac | c++filt | sort -u > "$ORY_PASTA.lista"
[ -s "$ORY_PASTA.lista" ] || falhar "$biblioteca exports nothing"

if [ "$1" = -- ]; then
    shift
    igual "$(cat "$ORY_PASTA.lista")" "$(printf '%s\n' "$@" | sort)" "the names of $biblioteca"
    exit
fi
macro=$1
shift
estranhos=$(grep -vE '^((vtable|VTT|typeinfo|typeinfo name) for |(non-)?virtual thunk to )?OryUtils::|^OryUtilsToolkitQt$' "$ORY_PASTA.lista" || true)
igual "$estranhos" "" "$biblioteca exports what is not its own"

# Comments go, lines join.
texto=$(find "$ORY_PREFIXO/include" -name '*.hpp' -exec sed 's|//.*||' {} + | tr '\n' ' ' | tr -s ' ')
grep -oE '[A-Za-z_][A-Za-z_0-9]*' <<< "$texto" | sort -u > "$ORY_PASTA.palavras"
desconhecidos=$(sed -E 's/^.* (for|to) //; s/\[abi:[a-z0-9]+\]//g; s/\(.*//; s/<.*//; s/operator.*//' "$ORY_PASTA.lista" |
    grep -oE '[A-Za-z_][A-Za-z_0-9]*' | sort -u | comm -23 - "$ORY_PASTA.palavras" | grep -v OryUtilsToolkitQt || true)
igual "$desconhecidos" "" "$biblioteca exports what no installed header names"

publico=$(find "$@" -name '*.hpp' ! -name '*Export.hpp' -exec sed 's|//.*||' {} + | tr '\n' ' ' | tr -s ' ')
classes=$(grep -oP "(class|struct) $macro \K\w+(?= [^;]*?\{)" <<< "$publico" | sort -u || true)
funcoes=$(grep -oP "(?<!class )(?<!struct )\b$macro (?!TInstanciaGlobal)[^;{}()=]*?\K\w+(?=\()" <<< "$publico" | sort -u || true)
globais=$(grep -oP "extern $macro [^;(]*?\K\w+(?=;)" <<< "$publico" | sort -u || true)
faltam=$(for nome in $classes $funcoes $globais; do grep -qE "\b$nome\b" "$ORY_PASTA.lista" || echo "$nome"; done)
igual "$faltam" "" "$biblioteca does not export what its headers declare"
echo "$(wc -l < "$ORY_PASTA.lista") names: $(wc -w <<< "$classes") classes, $(wc -w <<< "$funcoes") functions, $(wc -w <<< "$globais") globals declared"
[ "$(wc -w <<< "$classes")" -ge 2 ] || falhar "the headers are no longer understood"
