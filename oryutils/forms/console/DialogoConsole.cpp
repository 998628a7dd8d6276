#include "oryutils/forms/console/DialogoConsole.hpp"

#include "oryutils/characters/Acentos.hpp"
#include "oryutils/characters/Caixa.hpp"
#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/forms/NomeFalado.hpp"
#include "oryutils/forms/console/TextoDoTerminal.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

#include <algorithm>
#include <utility>

namespace OryUtils {
namespace {

std::u16string Numero(std::size_t AValor) { return InteiroParaTexto(static_cast<std::int64_t>(AValor)); }

void Chamar(const std::function<void()>& AManipulador) {
    try {
        AManipulador();
    } catch (const EAbort&) {
        // EAbort ends the handler and nothing else.
    }
}

bool EhPergunta(const TControleFormulario& AControle) {
    const TTipoControle tipo = AControle.GetTipo();
    return AControle.PodeReceberFoco() && (tipo == tcGrupoOpcoes || tipo == tcCaixaChecagem || tipo == tcCaixaEdicao);
}

/// Case and accents do not count: "nao" answers "Não".
bool SaoIguais(std::u16string_view ATexto, std::u16string_view AResposta) {
    std::u16string semAcento(ATexto), resposta(AResposta);
    std::ranges::transform(semAcento, semAcento.begin(), Interno::SemAcento);
    std::ranges::transform(resposta, resposta.begin(), Interno::SemAcento);
    return IguaisIgnorandoCaixa(semAcento, resposta);
}

bool Responde(const TBotao& ABotao, std::u16string_view AResposta) {
    const char16_t letra = BuscarLetraAtalho(ABotao.GetTexto());
    if (letra && AResposta.size() == 1 && MinusculaDe(AResposta[0]) == MinusculaDe(letra)) return true;
    return SaoIguais(RemoverAtalho(ABotao.GetTexto()), AResposta);
}

// "[S]im": the letter that answers stands in brackets.
std::u16string MostrarCaption(std::u16string_view ACaption) {
    const auto marca = ACaption.find(u'&');
    if (!BuscarLetraAtalho(ACaption) || marca + 1 >= ACaption.size()) return RemoverAtalho(ACaption);
    return RemoverAtalho(ACaption.substr(0, marca)) + u"[" + ACaption[marca + 1] + u"]" +
           RemoverAtalho(ACaption.substr(marca + 2));
}

}  // namespace

TDialogoConsole::TDialogoConsole(TFormulario& AFormulario, TConversa& AConversa, TEspera AEspera)
    : FFormulario(AFormulario), FConversa(AConversa), FEspera(std::move(AEspera)) {
    FFormulario.SetJanela(this);
}

TDialogoConsole::~TDialogoConsole() { FFormulario.SetJanela(nullptr); }

int TDialogoConsole::Executar() {
    Imprimir();
    Chamar([&] { FFormulario.OnShow(&FFormulario); });
    const auto usaveis = [&] {
        auto botoes = FFormulario.GetBotoes();
        std::erase_if(botoes, [](const TBotao* b) { return !b->PodeReceberFoco(); });
        return botoes;
    };
    const auto& controles = FFormulario.GetControles();
    const bool pergunta = std::any_of(controles.begin(), controles.end(), [](const auto& c) { return EhPergunta(*c); });
    if (auto botoes = usaveis(); FFormulario.GetModalResult() == mrNone && botoes.size() == 1 && !pergunta) {
        Chamar([&] { botoes.front()->Clicar(); });
    } else if (FConversa.PodeConversar()) {
        PerguntarControles();
        while (FFormulario.GetModalResult() == mrNone && !botoes.empty()) {
            PerguntarBotao(botoes);
            botoes = usaveis();
            for (const TControleFormulario* controle : std::exchange(FReaparecidos, {})) ImprimirControle(*controle);
        }
    }
    FFormulario.Fechar();
    return FFormulario.GetModalResult();
}

// A button may bring out more text: a detail that was hidden, a message that changed.
void TDialogoConsole::Mudou(TControleFormulario& AControle, TMudanca AMudanca) {
    const bool texto = AControle.GetTipo() == tcRotulo || AControle.GetTipo() == tcMemorando;
    if (texto && (AMudanca == mdEstado || AMudanca == mdTexto) && AControle.GetVisivel())
        FReaparecidos.push_back(&AControle);
}

// "Título: mensagem" first, then the rest in creation order.
void TDialogoConsole::Imprimir() {
    const TControleFormulario* mensagem = FFormulario.BuscarControle(CNomeDaMensagem);
    const auto& controles = FFormulario.GetControles();
    if (!mensagem) {
        const auto rotulo = std::find_if(controles.begin(), controles.end(),
                                         [](const auto& c) { return c->GetTipo() == tcRotulo && c->GetVisivel(); });
        if (rotulo != controles.end()) mensagem = rotulo->get();
    }
    std::u16string texto = FFormulario.GetTitulo();
    if (mensagem) texto += (texto.empty() ? u"" : u": ") + mensagem->GetTexto();
    Escrever(texto + u"\n");
    for (const auto& controle : controles)
        if (controle.get() != mensagem && controle->GetVisivel()) ImprimirControle(*controle);
}

void TDialogoConsole::ImprimirControle(const TControleFormulario& AControle) {
    switch (AControle.GetTipo()) {
        case tcRotulo:
        case tcMemorando:
            if (!AControle.GetTexto().empty()) Escrever(AControle.GetTexto() + u"\n");
            break;
        case tcGrupoOpcoes: {
            const auto& grupo = static_cast<const TGrupoOpcoes&>(AControle);
            std::u16string texto = RemoverAtalho(grupo.GetTexto()) + u"\n";
            for (std::size_t i = 0; i < grupo.GetItens().size(); ++i)
                texto += u"  " + Numero(i + 1) + u". " + RemoverAtalho(grupo.GetItens()[i]) + u"\n";
            Escrever(texto);
            break;
        }
        default:
            break;
    }
}

void TDialogoConsole::PerguntarControles() {
    // The loop counts positions, since a handler may add controls.
    for (std::size_t i = 0; i < FFormulario.GetControles().size(); ++i) {
        TControleFormulario& controle = *FFormulario.GetControles()[i];
        if (FFormulario.GetModalResult() != mrNone) return;
        if (!EhPergunta(controle)) continue;
        if (controle.GetTipo() == tcGrupoOpcoes) PerguntarOpcao(static_cast<TGrupoOpcoes&>(controle));
        if (controle.GetTipo() == tcCaixaChecagem) PerguntarChecagem(static_cast<TCaixaChecagem&>(controle));
        if (controle.GetTipo() == tcCaixaEdicao) PerguntarTexto(static_cast<TCaixaEdicao&>(controle));
    }
}

void TDialogoConsole::PerguntarOpcao(TGrupoOpcoes& AGrupo) {
    const std::size_t total = AGrupo.GetItens().size();
    if (total == 0) return;
    std::u16string pergunta = u"Opção (1 a " + Numero(total) + u")";
    if (AGrupo.GetIndice() >= 0) pergunta += u" [" + Numero(static_cast<std::size_t>(AGrupo.GetIndice()) + 1) + u"]";
    while (const auto resposta = Ler(pergunta + u": ")) {
        if (resposta->empty()) return;
        for (std::size_t i = 0; i < total; ++i)
            if (*resposta == Numero(i + 1) || SaoIguais(RemoverAtalho(AGrupo.GetItens()[i]), *resposta))
                return AGrupo.AceitarIndice(static_cast<int>(i));
        Escrever(u"Resposta não reconhecida.\n");
    }
}

void TDialogoConsole::PerguntarChecagem(TCaixaChecagem& ACaixa) {
    const std::u16string pergunta =
        RemoverAtalho(ACaixa.GetTexto()) + (ACaixa.GetMarcada() ? u" (s/n) [s]: " : u" (s/n) [n]: ");
    while (const auto resposta = Ler(pergunta)) {
        if (resposta->empty()) return;
        const bool sim = SaoIguais(*resposta, u"s") || SaoIguais(*resposta, u"sim");
        if (sim || SaoIguais(*resposta, u"n") || SaoIguais(*resposta, u"nao")) return ACaixa.AceitarMarcada(sim);
        Escrever(u"Resposta não reconhecida.\n");
    }
}

void TDialogoConsole::PerguntarTexto(TCaixaEdicao& ACaixa) {
    constexpr std::u16string_view CNada = u"\"\"";
    const std::u16string pergunta =
        ACaixa.GetTexto().empty() ? u"> " : u"[" + ACaixa.GetTexto() + u"] (Enter mantém, \"\" esvazia) > ";
    const auto resposta = Ler(pergunta);
    if (!resposta) return;
    if (!resposta->empty()) {
        ACaixa.AceitarTexto(*resposta == CNada && !ACaixa.GetTexto().empty() ? u"" : *resposta);
        Chamar([&] { ACaixa.OnMudar(&ACaixa); });
    }
    Chamar([&] { ACaixa.OnSair(&ACaixa); });
}

void TDialogoConsole::PerguntarBotao(const std::vector<TBotao*>& ABotoes) {
    std::u16string pergunta;
    TBotao* padrao = nullptr;
    for (TBotao* botao : ABotoes) {
        pergunta += (pergunta.empty() ? u"" : u" / ") + MostrarCaption(botao->GetTexto());
        if (botao == FFormulario.GetControleAtivo() || (!padrao && botao->GetPadrao())) padrao = botao;
    }
    if (padrao && ABotoes.size() > 1) pergunta += u" [" + RemoverAtalho(padrao->GetTexto()) + u"]";
    const auto resposta = Ler(pergunta + u": ");
    if (!resposta) return;
    const auto escolhido =
        std::find_if(ABotoes.begin(), ABotoes.end(), [&](const TBotao* b) { return Responde(*b, *resposta); });
    TBotao* botao = resposta->empty() ? padrao : escolhido == ABotoes.end() ? nullptr : *escolhido;
    if (botao)
        Chamar([&] { botao->Clicar(); });
    else
        Escrever(u"Resposta não reconhecida.\n");
}

void TDialogoConsole::Escrever(std::u16string_view ATexto) {
    FConversa.Escrever(Interno::ParaTerminal(ATexto, FConversa.GetColunas()));
}

std::optional<std::u16string> TDialogoConsole::Ler(std::u16string_view APergunta) {
    Escrever(APergunta);
    while (true) {
        const auto espera = FEspera();
        if (FFormulario.GetModalResult() != mrNone) {
            FConversa.Escrever(u"\n");  // closed by a timer: the question stays behind on its line
            return std::nullopt;
        }
        std::u16string linha;
        switch (FConversa.LerLinha(espera, linha)) {
            case Interno::llLinha:
                FFormulario.AoIntervir();
                return std::u16string(Aparar(linha));
            case Interno::llFim:
                FConversa.Escrever(u"\n");
                FFormulario.Fechar();
                return std::nullopt;
            case Interno::llTempo:
                break;
        }
    }
}

}  // namespace OryUtils
