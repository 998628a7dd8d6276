// What TOryUtilsDialogs asks of the user beyond an answer: texts, items, files, folders.
#include "oryutils/ui/UnOryUtilsDialogs.hpp"
#include "oryutils/ui/interno/Pedidos.hpp"
#include "oryutils/ui/interno/Seletores.hpp"

namespace OryUtils {

bool TOryUtilsDialogs::PedirTexto(const TOryUtilsDialogsPedidoTextoIOP& AParametros, std::u16string& AValor) {
    return ExecutarPedidoTexto(AParametros, AValor, TextosDialogos());
}

bool TOryUtilsDialogs::PedirSenha(std::u16string_view ATitulo, std::u16string_view APergunta, std::u16string& ASenha) {
    std::u16string senha;
    const TOryUtilsDialogsPedidoTextoIOP parametros{
        .Titulo = std::u16string(ATitulo), .Pergunta = std::u16string(APergunta), .Senha = true};
    if (!PedirTexto(parametros, senha)) return false;
    ASenha = senha;
    return true;
}

bool TOryUtilsDialogs::PedirLinhas(const TOryUtilsDialogsPedidoLinhasIOP& AParametros, std::u16string& AValor) {
    return ExecutarPedidoLinhas(AParametros, AValor, TextosDialogos());
}

bool TOryUtilsDialogs::PedirEscolha(const TOryUtilsDialogsPedidoEscolhaIOP& AParametros,
                                    std::vector<std::int32_t>& AIndices) {
    return ExecutarPedidoEscolha(AParametros, AIndices, TextosDialogos());
}

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
