// Versions of files: is the one on the server newer, and which is the newest of many?
#include "oryutils/files/OryUtilsFiles.hpp"
#include "oryutils/runtime/Formatos.hpp"

#include "guia/Escrever.hpp"

#include <fstream>
#include <string>
#include <vector>

using namespace OryUtils;

int main() {
    DefinirFormatSettings(BuscarFormatosBrasileiros());
    std::ofstream("servidor.ini") << "[VERSAO]\nNumero=7.2.0.15\n";
    // [versoes]
    const std::u16string instalada = u"7.2.0.9";
    const std::u16string oferecida = TOryUtilsFiles::BuscarVersaoArquivo(u"servidor.ini");
    if (TOryUtilsFiles::CompararVersao(oferecida, instalada) == fsMajor) Escrever(u"Há uma versão nova: " + oferecida);

    std::vector<std::u16string> versoes{u"1.10.0.0", u"1.9.0.0", u"1.9.0.12"};
    TOryUtilsFiles::OrdenarListaDeVersoes(versoes);
    Escrever(u"A mais nova é a " + TOryUtilsFiles::FormatarVersaoArquivo(versoes.back(), tdvMenor));
    Escrever(TOryUtilsFiles::FormatarTamanhoArquivo(1536));
    // [versoes]
}
