#!/usr/bin/env bash
# What find_package answers to good and bad wishes.
. "$(dirname "$0")/comum.sh"
rm -rf "$ORY_PASTA"
mkdir -p "$ORY_PASTA"
cd "$ORY_PASTA"

# pedir WHY STATUS TEXT ARGUMENTS-OF-FIND_PACKAGE [MORE-CMAKE]
pedir() {
    printf 'cmake_minimum_required(VERSION 3.23)\nproject(p CXX)\nfind_package(OryUtils %s)\n%s\n' "$4" "${5:-}" > CMakeLists.txt
    rm -rf b
    local situacao=0
    cmake -B b -DCMAKE_PREFIX_PATH="${ORY_ONDE:-$ORY_PREFIXO}" ${ORY_MAIS:+"$ORY_MAIS"} > saida.log 2>&1 || situacao=1
    # CMake breaks its messages into lines as it likes.
    [ $situacao = "$2" ] && tr -s ' \n' ' ' < saida.log | grep -qF "$3" || falhar "$1: status $situacao"$'\n'"$(cat saida.log)"
}
existem() { for alvo in "$@"; do echo "if(NOT TARGET $alvo)"$'\n'"message(FATAL_ERROR no-$alvo)"$'\n'"endif()"; done; }
faltam() { for alvo in "$@"; do echo "if(TARGET $alvo)"$'\n'"message(FATAL_ERROR has-$alvo)"$'\n'"endif()"; done; }

pedir "nothing asked for is the library" 0 "" "REQUIRED" "$(existem Ory::Types Ory::Utils Ory::UtilsStatic; faltam Ory::UtilsC)"
pedir "the types alone" 0 "" "REQUIRED COMPONENTS OryTypes" "$(existem Ory::Types; faltam Ory::Utils)"
pedir "the interface for C" 0 "" "REQUIRED COMPONENTS OryUtilsC" "$(existem Ory::UtilsC; faltam Ory::Utils)"
pedir "this version" 0 "" "$ORY_VERSAO REQUIRED"
pedir "a newer version" 1 "version: $ORY_VERSAO" "99.1 REQUIRED"
pedir "no such component" 1 "OryUtils has no component Datas; it has OryTypes, OryUtils, OryUtilsC, OryUtilsQt" "REQUIRED COMPONENTS OryUtils Datas"
pedir "a wish that may fail" 0 "" "REQUIRED COMPONENTS OryUtils OPTIONAL_COMPONENTS Datas" "$(existem Ory::Utils)
if(OryUtils_Datas_FOUND OR NOT OryUtils_OryUtils_FOUND)
message(FATAL_ERROR found)
endif()"
if [ -e "$ORY_PREFIXO/lib/cmake/OryUtils/OryUtilsQtAlvos.cmake" ]; then
    pedir "the Qt toolkit" 0 "" "REQUIRED COMPONENTS OryUtilsQt" "$(existem Ory::UtilsQt Ory::Utils Qt6::Widgets)"
    ORY_MAIS=-DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON \
        pedir "no Qt on the machine" 1 "needs Qt 6 Widgets, which was not found" "REQUIRED COMPONENTS OryUtilsQt"
fi
# An installation without the toolkit, moved to another place.
cp -R "$ORY_PREFIXO" movido
rm -f movido/lib/cmake/OryUtils/OryUtilsQtAlvos*.cmake
ORY_ONDE=$PWD/movido pedir "installed without it" 1 "OryUtilsQt is not part of this installation ($PWD/movido)" "REQUIRED COMPONENTS OryUtilsQt"
