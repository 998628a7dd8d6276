#include "oryutils/ui/UnOryUtilsDialogsTypes.hpp"

#include "oryutils/ui/interno/Medidas.hpp"

#include <variant>

namespace OryUtils {
namespace {

/// A text of the dialogs: its Portuguese words, or the kind of button of which it is the caption.
struct TDadosTexto {
    TTextoDialogo Texto;
    std::variant<std::u16string_view, TMsgDlgBtn> Valor;
};
constexpr std::array CDadosTexto{
    TDadosTexto{tdAtencao, u"Atenção"},
    TDadosTexto{tdErro, u"Erro"},
    TDadosTexto{tdInformacao, u"Informação"},
    TDadosTexto{tdConfirmacao, u"Confirmação"},
    TDadosTexto{tdSim, mbYes},
    TDadosTexto{tdNao, mbNo},
    TDadosTexto{tdOK, mbOK},
    TDadosTexto{tdCancelar, mbCancel},
    TDadosTexto{tdAjuda, mbHelp},
    TDadosTexto{tdAbortar, mbAbort},
    TDadosTexto{tdRetry, mbRetry},
    TDadosTexto{tdIgnorar, mbIgnore},
    TDadosTexto{tdTodos, mbAll},
    TDadosTexto{tdNaoParaTodos, mbNoToAll},
    TDadosTexto{tdSimParaTodos, mbYesToAll},
    TDadosTexto{tdFechar, mbClose},
    TDadosTexto{tdAviso, u"Aviso"},
    TDadosTexto{tdOpcoes, u"Opções: "},
    TDadosTexto{tdNotaFechamento,
                u"Observação: \r\nEsta mensagem será fechada automaticamente em %s caso não haja intervenção."},
    TDadosTexto{tdMostrarDetalhes, u"Mostrar &Detalhes"},
    TDadosTexto{tdOcultarDetalhes, u"Ocultar &Detalhes"},
    TDadosTexto{tdTodosArquivos, u"Todos"},
    TDadosTexto{tdMensagensGuardadas, u"Mensagens registradas: %s"},
    TDadosTexto{tdNaoPerguntarNovamente, u"Não &perguntar novamente"},
    TDadosTexto{tdLocalizar, u"Localizar:"},
    TDadosTexto{tdPreenchimento, u"Preenchimento obrigatório. Verifique."},
    TDadosTexto{tdEscolha, u"Escolha um item da lista."},
};
static_assert(CobreEnumeracao<CDadosTexto, &TDadosTexto::Texto>());

constexpr int CPontosPadrao = 8;

const std::u16string& BuscarVazio() {
    static const std::u16string vazio;
    return vazio;
}

}  // namespace

std::array<int, CQuantidadeBotoes> CLarguraBotao{};

TTextosDialogos::TTextosDialogos() { Restaurar(); }

void TTextosDialogos::Restaurar() {
    FTextos.assign(CDadosTexto.size(), u"");
    for (const TDadosTexto& dados : CDadosTexto)
        if (const auto* texto = std::get_if<std::u16string_view>(&dados.Valor)) FTextos[dados.Texto] = *texto;
    FCaptions.clear();
    for (const TDadosBotao& dados : CDadosBotao) FCaptions.emplace_back(dados.Caption);
}

const std::u16string& TTextosDialogos::Buscar(TTextoDialogo ATexto) const {
    const auto indice = static_cast<std::size_t>(ATexto);
    if (indice >= CDadosTexto.size()) return BuscarVazio();
    const auto* botao = std::get_if<TMsgDlgBtn>(&CDadosTexto[indice].Valor);
    return botao ? BuscarCaption(*botao) : FTextos[indice];
}

const std::u16string& TTextosDialogos::BuscarCaption(TMsgDlgBtn ABotao) const {
    return TMsgDlgButtons::EhConhecido(ABotao) ? FCaptions[static_cast<std::size_t>(ABotao)] : BuscarVazio();
}

const std::u16string& TTextosDialogos::BuscarCaption(TMsgDlgType ATipo) const {
    const auto indice = static_cast<std::size_t>(ATipo);
    if (indice >= CDadosDialogo.size() || !CDadosDialogo[indice].Titulo) return BuscarVazio();
    return Buscar(*CDadosDialogo[indice].Titulo);
}

void TTextosDialogos::Substituir(TTextoDialogo ATexto, std::u16string_view AValor) {
    const auto indice = static_cast<std::size_t>(ATexto);
    if (indice >= CDadosTexto.size()) return;
    if (const auto* botao = std::get_if<TMsgDlgBtn>(&CDadosTexto[indice].Valor))
        Substituir(*botao, AValor);
    else
        FTextos[indice] = AValor;
}

void TTextosDialogos::Substituir(TMsgDlgBtn ABotao, std::u16string_view ACaption) {
    if (TMsgDlgButtons::EhConhecido(ABotao)) FCaptions[static_cast<std::size_t>(ABotao)] = ACaption;
}

TTextosDialogos& TextosDialogos() {
    static TTextosDialogos textos;
    return textos;
}

void PreencherLargurasBotao() {
    for (const TDadosBotao& dados : CDadosBotao)
        CLarguraBotao[dados.Tipo] = CalcularLarguraBotao(CPontosPadrao, CCaptionsBotao[dados.Tipo].size());
}

}  // namespace OryUtils
