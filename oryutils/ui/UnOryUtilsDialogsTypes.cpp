#include "oryutils/ui/UnOryUtilsDialogsTypes.hpp"

#include "oryutils/ui/interno/Medidas.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

// "&Retry" is English among Portuguese captions since the first version; users know it.
constexpr std::array<std::u16string_view, CQuantidadeTextos> CTextosPadrao{
    u"Atenção",
    u"Erro",
    u"Informação",
    u"Confirmação",
    u"&Sim",
    u"&Não",
    u"O&K",
    u"&Cancelar",
    u"&Ajuda",
    u"A&bortar",
    u"&Retry",
    u"&Ignorar",
    u"To&dos",
    u"Nã&o p/ Todos",
    u"Si&m p/ Todos",
    u"&Fechar",
    u"Aviso",
    u"Opções: ",
    u"Observação: \r\nEsta mensagem será fechada automaticamente em %s caso não haja intervenção.",
    u"Mostrar Detalhes",
    u"Ocultar Detalhes",
    u"Todos",
    u"Mensagens registradas: %s",
};

// By button kind.
constexpr std::array<TTextoDialogo, CQuantidadeBotoes> CTextosBotao{
    tdSim,     tdNao,   tdOK,           tdCancelar,     tdAbortar, tdRetry,
    tdIgnorar, tdTodos, tdNaoParaTodos, tdSimParaTodos, tdAjuda,   tdFechar};

// By dialog kind; mtCustom has none.
constexpr std::array CTextosDialogo{tdAtencao, tdErro, tdInformacao, tdConfirmacao};

constexpr int CPontosPadrao = 8;

const std::u16string& BuscarVazio() {
    static const std::u16string vazio;
    return vazio;
}

}  // namespace

std::array<int, CQuantidadeBotoes> CLarguraBotao{};

TTextosDialogos::TTextosDialogos() { Restaurar(); }

void TTextosDialogos::Restaurar() { std::copy(CTextosPadrao.begin(), CTextosPadrao.end(), FTextos.begin()); }

const std::u16string& TTextosDialogos::Buscar(TTextoDialogo ATexto) const {
    const auto indice = static_cast<std::size_t>(ATexto);
    return indice < FTextos.size() ? FTextos[indice] : BuscarVazio();
}

const std::u16string& TTextosDialogos::BuscarCaption(TMsgDlgBtn ABotao) const {
    if (!TMsgDlgButtons::EhConhecido(ABotao)) return BuscarVazio();
    return Buscar(CTextosBotao[static_cast<std::size_t>(ABotao)]);
}

const std::u16string& TTextosDialogos::BuscarCaption(TMsgDlgType ATipo) const {
    const auto indice = static_cast<std::size_t>(ATipo);
    return indice < CTextosDialogo.size() ? Buscar(CTextosDialogo[indice]) : BuscarVazio();
}

void TTextosDialogos::Substituir(TTextoDialogo ATexto, std::u16string_view AValor) {
    const auto indice = static_cast<std::size_t>(ATexto);
    if (indice < FTextos.size()) FTextos[indice] = AValor;
}

TTextosDialogos& TextosDialogos() {
    static TTextosDialogos textos;
    return textos;
}

void PreencherLargurasBotao() {
    for (std::size_t i = 0; i < CQuantidadeBotoes; ++i)
        CLarguraBotao[i] = CalcularLarguraBotao(CPontosPadrao, CCaptionsBotao[static_cast<TMsgDlgBtn>(i)].size());
}

}  // namespace OryUtils
