#!/usr/bin/env bash
# The .zip for Windows: made, unpacked, its programs run from there.
. "$(dirname "$0")/comum.sh"
rm -rf "$ORY_PASTA"
mkdir -p "$ORY_PASTA"
cd "$ORY_PASTA"
cpack -G ZIP --config "$ORY_BUILD/CPackConfig.cmake" -B "$PWD/pacotes" > cpack.log 2>&1 || falhar "$(cat cpack.log)"
cmake -E tar xf pacotes/oryutils-"$ORY_VERSAO"-windows-x86_64.zip
ORY_PREFIXO=$ORY_PASTA/oryutils-$ORY_VERSAO-windows-x86_64
for arquivo in bin/libOryUtils-0.dll bin/libOryUtilsC-0.dll bin/libstdc++-6.dll bin/ory.exe lib/libOryUtils.dll.a \
    lib/libOryUtilsC.dll.a lib/libOryUtilsStatic.a include/oryutils/OryUtils.hpp include/oryutils/c/oryutils.h; do
    [ -f "$ORY_PREFIXO/$arquivo" ] || falhar "$arquivo is missing"
done
igual "$(rodar "$ORY_PREFIXO/bin/ory" chamar FormatarInscricaoFederal 1 11222333000181)" "11.222.333/0001-81" "the command"
# Beside the DLLs, as a user would put it.
x86_64-w64-mingw32-g++-posix -std=c++20 "$ORY_FONTES/examples/primeiro/main.cpp" -o "$ORY_PREFIXO/bin/primeiro.exe" \
    -I"$ORY_PREFIXO/include" -L"$ORY_PREFIXO/lib" -lOryUtils
igual "$(rodar "$ORY_PREFIXO/bin/primeiro")" "$ESPERADO" "a program beside the DLLs"
