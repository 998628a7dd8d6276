// What TOryUtilsDialogs asks of the user beyond an answer: files, folders.
#include "oryutils/ui/UnOryUtilsDialogs.hpp"
#include "oryutils/ui/interno/Seletores.hpp"

namespace OryUtils {

std::u16string TOryUtilsDialogs::EscolherArquivo(const TOryUtilsDialogsSelecaoIOP& AParametros) {
    return SelecionarCaminho(scAbrir, AParametros);
}

std::vector<std::u16string> TOryUtilsDialogs::EscolherArquivos(const TOryUtilsDialogsSelecaoIOP& AParametros) {
    return SelecionarCaminhos(scAbrirVarios, AParametros);
}

std::u16string TOryUtilsDialogs::EscolherArquivoParaSalvar(const TOryUtilsDialogsSelecaoIOP& AParametros) {
    return SelecionarCaminho(scSalvar, AParametros);
}

std::u16string TOryUtilsDialogs::EscolherPasta(const TOryUtilsDialogsSelecaoIOP& AParametros) {
    return SelecionarCaminho(scPasta, AParametros);
}

}  // namespace OryUtils
