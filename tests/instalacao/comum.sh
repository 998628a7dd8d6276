# For the scripts of this folder: run with ORY_FONTES, ORY_BUILD, ORY_CASA (a home with the installation in
# oryutils), ORY_PREFIXO (that one), ORY_PASTA (theirs to empty), ORY_SISTEMA (linux, windows) and ORY_VERSAO set.
set -euo pipefail

falhar() {
    echo "FAILED: $*" >&2
    exit 1
}

# igual GOT EXPECTED WHY
igual() { [ "$1" = "$2" ] || falhar "$3"$'\n'"--- got"$'\n'"$1"$'\n'"--- expected"$'\n'"$2"; }

# bloco FILE LANGUAGE NUMBER [HEADING]: the so-manieth fenced block of that language, below that heading where given.
bloco() {
    awk -v lingua="$2" -v qual="$3" -v titulo="${4:-}" '
        titulo == "" || $0 == titulo { dentro = 1 }
        titulo != "" && /^## / && $0 != titulo { dentro = 0 }
        /^```/ && copia { exit }
        copia { print; achou = 1 }
        dentro && $0 == "```" lingua && ++n == qual { copia = 1 }
        END { exit !achou }' "$1" || falhar "$1 has no block $3 of $2 below \"${4:-}\""
}

# construir README HEADING TARGET: main.cpp becomes build/meu_programa by the lines of the README, linked with TARGET.
construir() {
    bloco "$1" cmake 1 "$2" | sed "s/Ory::Utils)/$3)/" > CMakeLists.txt
    grep -qF "$3)" CMakeLists.txt || falhar "the block does not link $3"
    local comandos=1
    [ "$ORY_SISTEMA" = windows ] && comandos=2
    bloco "$1" sh $((comandos + 1)) "$2" | sed "s|oryutils-fontes|$ORY_FONTES|g" > construir.sh
    grep -q "cmake" construir.sh || falhar "the block does not build"
    HOME=$ORY_CASA bash -euo pipefail construir.sh > saida.log 2>&1 || falhar "$(cat construir.sh saida.log)"
}

# rodar PROGRAM ARGUMENT...: as the system of the build runs it; the shared libraries are those of the prefix.
rodar() {
    if [ "$ORY_SISTEMA" = windows ]; then
        WINEPATH="Z:$ORY_PREFIXO/bin" "$ORY_FONTES/scripts/wine" "$1.exe" "${@:2}" | tr -d '\r'
    else
        LD_LIBRARY_PATH=$ORY_PREFIXO/lib "$@"
    fi
}

ESPERADO=$'válido\n529.982.247-25\n4º trimestre'
