#!/usr/bin/env bash
# The example of docs/log.md, with the document's own clock handed in, against the installed library: its file holds what
# the document shows.
. "$(dirname "$0")/comum.sh"
rm -rf "$ORY_PASTA"
mkdir -p "$ORY_PASTA"
cd "$ORY_PASTA"

documento=$ORY_FONTES/docs/log.md
{
    echo '#include "oryutils/files/UnOryUtilsArquivoLog.hpp"'
    echo 'using namespace OryUtils;'
    bloco "$documento" cpp 2
    echo 'int main() {'
    echo 'TRelogioDoServidor relogio;'
    bloco "$documento" cpp 1 | sed 's|log(u"/var/log/loja/Importacao.txt")|log(u"loja/Importacao.txt", relogio)|'
    echo '}'
} > main.cpp
grep -q 'loja/Importacao.txt", relogio' main.cpp || falhar "the block names another file"
construir "$ORY_FONTES/README.md" "## In your project" Ory::Utils
rodar build/meu_programa
# What the machine and the name of this program put there.
da_maquina() { tr -d '\r' | sed -E 's/((Aplicação executora|IP|Nome da máquina): ).*/\1/'; }
igual "$(da_maquina < loja/Importacao_21_11_2026.log)" "$(bloco "$documento" text 1 | da_maquina)" "the file of the log"
