#include "oryutils/forms/console/DialogoConsole.hpp"

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/forms/NomeFalado.hpp"
#include "oryutils/forms/console/RespostaDeLista.hpp"
#include "oryutils/forms/console/TextoDoTerminal.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

namespace OryUtils {
namespace {

// What empties an edit, and a choice.
constexpr std::u16string_view CNada = u"\"\"";

std::u16string Numero(std::size_t AValor) { return InteiroParaTexto(static_cast<std::int64_t>(AValor)); }

void Chamar(const std::function<void()>& AManipulador) {
    try {
        AManipulador();
    } catch (const EAbort&) {
        // EAbort ends the handler and nothing else.
    }
}

bool EhPergunta(const TControleFormulario& AControle) {
    if (!AControle.PodeReceberFoco()) return false;
    switch (AControle.GetTipo()) {
        case tcGrupoOpcoes:
        case tcCaixaChecagem:
        case tcListaEscolha:
            return true;
        case tcCaixaEdicao:
            return !static_cast<const TCaixaEdicao&>(AControle).GetAuxiliar();
        case tcMemorando:
            return !static_cast<const TMemorando&>(AControle).GetSomenteLeitura();
        default:
            return false;
    }
}

std::u16string MostrarItens(const std::vector<std::u16string>& AItens) {
    std::u16string texto;
    for (std::size_t i = 0; i < AItens.size(); ++i) texto += u"  " + Numero(i + 1) + u". " + AItens[i] + u"\n";
    return texto;
}

bool Responde(const TBotao& ABotao, std::u16string_view AResposta) {
    const char16_t letra = BuscarLetraAtalho(ABotao.GetTexto());
    if (letra && AResposta.size() == 1 && MinusculaDe(AResposta[0]) == MinusculaDe(letra)) return true;
    return Interno::SaoIguaisNaConversa(RemoverAtalho(ABotao.GetTexto()), AResposta);
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
            FFocado = nullptr;
            PerguntarBotao(botoes);
            botoes = usaveis();
            for (const TControleFormulario* controle : std::exchange(FReaparecidos, {})) ImprimirControle(*controle);
            // What a button refused has the focus again.
            if (FFocado && FFormulario.GetModalResult() == mrNone) PerguntarControle(*FFocado);
        }
    }
    FFormulario.Fechar();
    return FFormulario.GetModalResult();
}

// A button may send the focus back to a question, and bring out more text: a detail that was hidden, a message that
// changed.
void TDialogoConsole::Mudou(TControleFormulario& AControle, TMudanca AMudanca) {
    if (AMudanca == mdFoco && EhPergunta(AControle)) FFocado = &AControle;
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
    for (auto controle = controles.begin(); controle != controles.end(); ++controle) {
        if (controle->get() == mensagem || !(*controle)->GetVisivel()) continue;
        // The label of a box that is left out goes with it.
        const auto seguinte = std::next(controle);
        const bool auxiliar = seguinte != controles.end() && (*seguinte)->GetTipo() == tcCaixaEdicao &&
                              static_cast<const TCaixaEdicao&>(**seguinte).GetAuxiliar();
        if (!auxiliar) ImprimirControle(**controle);
    }
}

void TDialogoConsole::ImprimirControle(const TControleFormulario& AControle) {
    switch (AControle.GetTipo()) {
        case tcRotulo:
        case tcMemorando:
            if (!AControle.GetTexto().empty()) Escrever(AControle.GetTexto() + u"\n");
            break;
        case tcGrupoOpcoes: {
            const auto& grupo = static_cast<const TGrupoOpcoes&>(AControle);
            std::vector<std::u16string> itens;
            for (const std::u16string& item : grupo.GetItens()) itens.push_back(RemoverAtalho(item));
            Escrever(RemoverAtalho(grupo.GetTexto()) + u"\n" + MostrarItens(itens));
            break;
        }
        case tcListaEscolha:
            Escrever(MostrarItens(static_cast<const TListaEscolha&>(AControle).GetItens()));
            break;
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
        PerguntarControle(controle);
    }
}

void TDialogoConsole::PerguntarControle(TControleFormulario& AControle) {
    switch (AControle.GetTipo()) {
        case tcGrupoOpcoes:
            return PerguntarOpcao(static_cast<TGrupoOpcoes&>(AControle));
        case tcCaixaChecagem:
            return PerguntarChecagem(static_cast<TCaixaChecagem&>(AControle));
        case tcListaEscolha:
            return PerguntarItens(static_cast<TListaEscolha&>(AControle));
        case tcMemorando:
            return PerguntarLinhas(static_cast<TMemorando&>(AControle));
        default:
            return PerguntarTexto(static_cast<TCaixaEdicao&>(AControle));
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
            if (*resposta == Numero(i + 1) ||
                Interno::SaoIguaisNaConversa(RemoverAtalho(AGrupo.GetItens()[i]), *resposta))
                return AGrupo.AceitarIndice(static_cast<int>(i));
        Escrever(u"Resposta não reconhecida.\n");
    }
}

void TDialogoConsole::PerguntarChecagem(TCaixaChecagem& ACaixa) {
    const std::u16string pergunta =
        RemoverAtalho(ACaixa.GetTexto()) + (ACaixa.GetMarcada() ? u" (s/n) [s]: " : u" (s/n) [n]: ");
    while (const auto resposta = Ler(pergunta)) {
        if (resposta->empty()) return;
        const bool sim =
            Interno::SaoIguaisNaConversa(*resposta, u"s") || Interno::SaoIguaisNaConversa(*resposta, u"sim");
        if (sim || Interno::SaoIguaisNaConversa(*resposta, u"n") || Interno::SaoIguaisNaConversa(*resposta, u"nao"))
            return ACaixa.AceitarMarcada(sim);
        Escrever(u"Resposta não reconhecida.\n");
    }
}

void TDialogoConsole::PerguntarItens(TListaEscolha& ALista) {
    const auto& itens = ALista.GetItens();
    if (itens.empty()) return;
    std::u16string pergunta = (ALista.GetVarios() ? u"Itens (1 a " : u"Item (1 a ") + Numero(itens.size()) +
                              (ALista.GetVarios() ? u" ou texto, vários com vírgula)" : u" ou texto)");
    std::u16string escolhidos;
    for (const int i : ALista.GetEscolhidos())
        escolhidos += (escolhidos.empty() ? u"" : u",") + Numero(static_cast<std::size_t>(i) + 1);
    if (!escolhidos.empty()) pergunta += u" [" + escolhidos + u"]";
    while (const auto resposta = Ler(pergunta + u": ")) {
        if (resposta->empty()) return;
        auto lida = *resposta == CNada && ALista.GetVarios()
                        ? Interno::TRespostaDeLista{}
                        : Interno::LerRespostaDeLista(itens, ALista.GetVarios(), *resposta);
        if (lida.Recusa.empty()) {
            ALista.AceitarEscolhidos(std::move(lida.Escolhidos));
            Chamar([&] { ALista.OnEscolher(&ALista); });
            return;
        }
        Escrever(lida.Recusa);
    }
}

// The text stays when the first line ends it.
void TDialogoConsole::PerguntarLinhas(TMemorando& AMemorando) {
    const bool vazio = AMemorando.GetTexto().empty();
    Escrever(vazio ? u"(uma linha só com . termina)\n" : u"(uma linha só com . termina; na primeira mantém o texto)\n");
    std::u16string texto;
    bool primeira = true;
    while (const auto linha = Ler(u"> ", lsComBrancos)) {
        if (*linha == u".") {
            if (!primeira) AMemorando.AceitarTexto(texto);
            return;
        }
        texto += (primeira ? u"" : u"\r\n") + *linha;
        primeira = false;
    }
}

void TDialogoConsole::PerguntarTexto(TCaixaEdicao& ACaixa) {
    const bool senha = ACaixa.GetSenha();
    std::u16string pergunta = u"> ";
    if (senha && !ACaixa.GetTexto().empty()) pergunta = u"[...] (Enter mantém, \"\" esvazia) > ";
    if (!senha && !ACaixa.GetTexto().empty())
        pergunta = u"[" + ACaixa.GetTexto() + u"] (Enter mantém, \"\" esvazia) > ";
    const auto resposta = Ler(pergunta, senha ? lsSenha : lsAparada);
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

std::optional<std::u16string> TDialogoConsole::Ler(std::u16string_view APergunta, TLinhaLida AComo) {
    struct TSemEco {
        TConversa& Conversa;
        bool Ligado;
        ~TSemEco() {
            if (Ligado) Conversa.MostrarDigitado(true);
        }
    } const semEco{FConversa, AComo == lsSenha};
    if (semEco.Ligado) FConversa.MostrarDigitado(false);
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
                if (semEco.Ligado) FConversa.Escrever(u"\n");  // its own was not shown
                return AComo == lsAparada ? std::u16string(Aparar(linha)) : linha;
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
