#!/usr/bin/env bash
# Debian's packages: made, installed by dpkg on a root that has the C and C++ run times and nothing else, used, removed.
. "$(dirname "$0")/comum.sh"
[ "$(id -u)" = 0 ] || exec fakeroot "$0" "$@"
rm -rf "$ORY_PASTA"
mkdir -p "$ORY_PASTA"
cd "$ORY_PASTA"
cpack -G DEB --config "$ORY_BUILD/CPackConfig.cmake" -B "$PWD/pacotes" > cpack.log 2>&1 || falhar "$(cat cpack.log)"
rm -rf pacotes/_CPack_Packages
cd pacotes
pacote() { ls "$1"_"$ORY_VERSAO"_*.deb; }

raiz=$ORY_PASTA/raiz
mkdir -p "$raiz"/var/lib/dpkg/{info,updates,triggers} "$raiz"/usr/{bin,lib}
for base in libc6 libgcc-s1 libstdc++6 gcc-12-base libcrypt1; do
    dpkg-query -s "$base" 2> /dev/null && echo
done > "$raiz/var/lib/dpkg/status"
instalar() { dpkg --root="$raiz" --force-script-chrootless --force-not-root --log=/dev/null "$@" > ../dpkg.log 2>&1; }

# Alone it lacks what it says it needs.
instalar -i "$(pacote liboryutils-dev)" && falhar "liboryutils-dev installs without the library"
instalar --force-depends --purge liboryutils-dev || true
instalar -i "$(pacote liboryutils0)" "$(pacote liboryutils-dev)" "$(pacote oryutils-tools)" || falhar "$(cat ../dpkg.log)"
igual "$("$raiz/usr/bin/ory" chamar FormatarInscricaoFederal 1 11222333000181)" "11.222.333/0001-81" "the installed command"
[ -L "$raiz/usr/lib/libOryUtils.so.0" ] && [ -L "$raiz/usr/lib/libOryUtilsC.so.0" ] || falhar "the names of the binary interface"
[ ! -e "$raiz/usr/include/oryutils-qt" ] || falhar "the Qt headers have a package of their own"
for nome in liboryutils0 liboryutils-dev oryutils-tools; do
    [ -f "$raiz/usr/share/doc/$nome/CHANGELOG.md" ] || falhar "$nome has no documents"
    for campo in Version Maintainer Description Section Depends; do
        [ -n "$(dpkg-deb -f "$(pacote $nome)" $campo)" ] || falhar "$nome has no $campo"
    done
done
igual "$(dpkg-deb -f "$(pacote liboryutils0)" Version)" "$ORY_VERSAO" "the version"
dpkg-deb -f "$(pacote liboryutils0)" Depends | grep -q 'libstdc++6 (>= ' || falhar "liboryutils0 does not name the C++ run time"
dpkg-deb -I "$(pacote liboryutils0)" triggers | grep -q ldconfig || falhar "nobody tells the loader"
dpkg-deb -I "$(pacote liboryutils0)" shlibs | grep -q '^libOryUtils 0 liboryutils0' || falhar "no shlibs"

mkdir "$ORY_PASTA/programa"
cd "$ORY_PASTA/programa"
cp "$ORY_FONTES/examples/primeiro/main.cpp" .
bloco "$ORY_FONTES/README.md" cmake 1 "## In your project" > CMakeLists.txt
{ cmake -B build -DCMAKE_PREFIX_PATH="$raiz/usr" && cmake --build build; } > saida.log 2>&1 || falhar "$(cat saida.log)"
grep -q "OryUtils_DIR:PATH=$raiz/" build/CMakeCache.txt || falhar "another OryUtils was found"
ORY_PREFIXO=$raiz/usr
igual "$(rodar build/meu_programa)" "$ESPERADO" "a program built on the packages"

cd "$ORY_PASTA/pacotes"
if ls liboryutils-qt0_*.deb > /dev/null 2>&1; then
    dpkg-deb -f "$(pacote liboryutils-qt0)" Depends | grep -q 'libqt6widgets6' || falhar "the toolkit does not name Qt"
    instalar -i "$(pacote liboryutils-qt0)" && falhar "the toolkit installs without Qt"
    instalar --force-depends --purge liboryutils-qt0 || true
fi
instalar --purge oryutils-tools liboryutils-dev liboryutils0 || falhar "$(cat ../dpkg.log)"
igual "$(find "$raiz/usr" -type f -o -type l)" "" "what a removal leaves behind"
