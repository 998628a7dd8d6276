#include "oryutils/ui/UnOryUtilsDialogsCentralNotificacoes.hpp"

#include "oryutils/runtime/Modelo.hpp"
#include "oryutils/ui/interno/FormularioDetalhe.hpp"

#include <algorithm>
#include <string>

namespace OryUtils {
namespace {

// Decimal digits of a count; no thousands separator.
std::u16string EscreverQuantidade(std::size_t AQuantidade) {
    const std::string digitos = std::to_string(AQuantidade);
    return {digitos.begin(), digitos.end()};
}

}  // namespace

void TOryUtilsDialogsCentralNotificacoes::Adicionar(std::u16string_view ATitulo, std::u16string_view AMensagem,
                                                    TMsgDlgType ATipo) {
    FTipos.push_back(ATipo);
    FMensagens.push_back(std::u16string(ATitulo) + u": \r\n" + std::u16string(AMensagem));
}

void TOryUtilsDialogsCentralNotificacoes::Limpar() {
    FMensagens.clear();
    FTipos.clear();
}

int TOryUtilsDialogsCentralNotificacoes::Exibir() {
    if (FMensagens.empty()) return mrNone;
    const TTextosDialogos& textos = TextosDialogos();
    TOryUtilsDialogsFormDetalhesIOP parametros;
    const std::size_t quantidade = FMensagens.size();
    parametros.Mensagem = PreencherModelo(textos.Buscar(tdMensagensGuardadas), {EscreverQuantidade(quantidade)});
    for (const std::u16string& mensagem : FMensagens) {
        if (!parametros.MensagemDetalhe.empty()) parametros.MensagemDetalhe += u"\r\n\r\n";
        parametros.MensagemDetalhe += mensagem;
    }
    for (const TMsgDlgType tipo : {mtWarning, mtError})
        if (std::find(FTipos.begin(), FTipos.end(), tipo) != FTipos.end()) parametros.TipoDialogo = tipo;
    const int resultado = ExecutarFormularioDetalhe(parametros, textos.Buscar(tdInformacao), textos, nullptr, true);
    // Messages that arrived while the form was open stay. A Limpar called meanwhile may have left fewer.
    const auto mostradas = static_cast<std::ptrdiff_t>(std::min(quantidade, FMensagens.size()));
    FMensagens.erase(FMensagens.begin(), FMensagens.begin() + mostradas);
    FTipos.erase(FTipos.begin(), FTipos.begin() + mostradas);
    return resultado;
}

}  // namespace OryUtils
