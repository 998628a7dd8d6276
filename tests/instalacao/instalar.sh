#!/usr/bin/env bash
# The installing line of the READMEs, run as it stands for the tree of this build, in a home made for the tests.
. "$(dirname "$0")/comum.sh"
rm -rf "$ORY_CASA"
mkdir -p "$ORY_CASA"
um=$(bloco "$ORY_FONTES/README.md" sh 1 "## In your project")
igual "$(bloco "$ORY_FONTES/README.pt-BR.md" sh 1 "## No seu projeto")" "$um" "both READMEs say the same"
linha=$(grep -- --install <<< "$um")
HOME=$ORY_CASA bash -euo pipefail -c "${linha//build\/linux/$ORY_BUILD}" > /dev/null
[ -d "$ORY_PREFIXO/include/oryutils" ] || falhar "nothing in $ORY_PREFIXO"
