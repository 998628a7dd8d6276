#include "oryutils/ui/interno/Disposicao.hpp"

#include "oryutils/forms/NomeFalado.hpp"
#include "oryutils/ui/UnOryUtilsDialogsTypes.hpp"
#include "oryutils/ui/interno/Medidas.hpp"

#include <algorithm>
#include <vector>

namespace OryUtils {
namespace {

// Pixels at 96 per inch; the applications' forms count on them.
constexpr int CLadoIcone = 32;
constexpr int CAlturaGrupo = 40;
constexpr int CAlturaOpcao = 20;
constexpr int CLarguraPorLetra = 4;
constexpr int CLarguraGrupo = 150;
constexpr int CDistanciaAdicao = 15;  // between buttons and what was added
constexpr int CEntreBotoesAdicao = 3;
constexpr int CCrescimentoMinimo = 100;
constexpr int CFolgaDaFila = 100;     // a form with options is this much wider than its row of buttons
constexpr int CMargensDoGrupo = 16;   // left and right of an option
constexpr int CBotoesDoTitulo = 100;  // icon and buttons of a title bar

// Dialog units.
constexpr int CMargemApertada = 2;
constexpr int CAlturaEdicao = 14;
constexpr int CAlturaProgresso = 8;
constexpr int CDistanciaPergunta = 3;  // prompt to edit box
constexpr int CAlturaCaixa = 10;
constexpr int CAlturaDetalhe = 100;

// Lines of text, and average characters of one line.
constexpr int CLinhasParaRolar = 3;
constexpr int CLinhasDoProgresso = 2;
constexpr int CLetrasPorLinha = 90;
constexpr int CMenosLetrasPorLinha = 40;

// Where the stated distances do not fit: smaller ones, then no icon and at most two buttons of equal width in a row,
// then three, and so on until all stand in one.
constexpr int CNivelApertado = 1;
constexpr int CNivelSemIcone = 2;

struct TFila {
    std::size_t Fim;  // one past its last button
    int Largura;      // with the spaces between
    int Botoes;       // without
};

/// One attempt: everything is measured first, so that a form on the screen moves once.
class TDisposicao {
public:
    TDisposicao(TFormulario& AFormulario, TPartesDoDialogo& APartes, int ANivel)
        : FFormulario(AFormulario),
          FPartes(APartes),
          FToolkit(BuscarToolkit()),
          FUnidades(FToolkit),
          FArea(BuscarAreaUtil(FToolkit)),
          FNivel(ANivel),
          FBotoes(AFormulario.GetBotoes()) {}

    /// Whether everything fits the work area.
    bool Medir();
    void Aplicar();

private:
    bool EstahApertado() const { return FNivel >= CNivelApertado; }
    bool TemIcone() const { return FPartes.Icone && FNivel < CNivelSemIcone; }
    // The labels of boxes go with the icon; screen readers still tell them.
    bool TemRotulos() const { return FNivel < CNivelSemIcone; }
    bool TemAdicao() const { return FPartes.Grupo || FPartes.Caixa; }
    int MedirAltura(TTipoControle ATipo, std::u16string_view ATexto = u"Mg") const {
        return FToolkit.MedirControle(ATipo, ATexto, 0).Altura;
    }
    int BuscarLargura(const TBotao& ABotao, bool AComAdicao) const;
    void MedirDistancias();
    void MedirFilas();
    void MedirCaixa();
    void MedirDetalhe();
    int MedirGrupo();
    bool MedirMensagem();
    void MedirCliente();
    void AplicarMensagem();
    int AplicarEntrada(int ATopo);
    int AplicarFilas(int ATopo);

    TFormulario& FFormulario;
    TPartesDoDialogo& FPartes;
    const TToolkit& FToolkit;
    const TUnidades FUnidades;
    const TTamanho FArea;
    const int FNivel;
    const std::vector<TBotao*> FBotoes;

    int FMargem = 0, FMargemVertical = 0, FEsquerda = 0, FLadoIcone = 0;
    int FEntreBotoes = 0, FEntreFilas = 0, FDistancia = 0, FAlturaBotao = 0, FAlturaFilas = 0;
    int FAlturaEdicao = 0, FAlturaProgresso = 0, FDistanciaEdicao = 0, FAlturaDetalhe = 0, FFolgaDoFim = 0;
    int FDistanciaCorpo = 0, FAlturaCorpo = 0;
    int FLinha = 0, FBordasDoMemorando = 0, FAlturaMemorando = 0;
    bool FCabe = true;
    std::vector<int> FLarguras;
    std::vector<TFila> FFilas;
    TTamanho FTexto, FGrupo, FCaixa, FCliente;
};

// A caption and 6 units at both sides, at least what the host or the width rule asks for.
int TDisposicao::BuscarLargura(const TBotao& ABotao, bool AComAdicao) const {
    const std::u16string caption = ABotao.GetLegenda();
    const int necessaria = FToolkit.MedirControle(tcBotao, caption, 0).Largura;
    if (EstahApertado()) return necessaria;
    if (AComAdicao) {
        const int regra = CalcularLarguraBotao(FToolkit.GetTamanhoFonte(), caption.size());
        return std::max(FUnidades.Escalar(regra), necessaria);
    }
    const int texto = FToolkit.MedirTexto(RemoverAtalho(caption), 0).Largura;
    const auto nome = std::find(CNomesBotao.begin(), CNomesBotao.end(), ABotao.GetNome());
    const int doTipo =
        nome == CNomesBotao.end() ? 0 : CLarguraBotao[static_cast<std::size_t>(nome - CNomesBotao.begin())];
    return std::max({FUnidades.Horizontal(CLarguraMinimaBotao), FUnidades.Escalar(doTipo),
                     texto + 2 * FUnidades.Horizontal(CFolgaCaption), necessaria});
}

void TDisposicao::MedirDistancias() {
    FMargem = FUnidades.Horizontal(EstahApertado() ? CMargemApertada : CMargem);
    FMargemVertical = FUnidades.Vertical(EstahApertado() ? CMargemApertada : CMargem);
    FDistancia = EstahApertado() ? FMargemVertical : FUnidades.Escalar(CDistanciaAdicao);
    FEntreBotoes = TemAdicao() || EstahApertado() ? FUnidades.Escalar(CEntreBotoesAdicao)
                                                  : FUnidades.Horizontal(CEspacoEntreBotoes);
    FEntreFilas = EstahApertado() ? FEntreBotoes : FUnidades.Vertical(CEspacoEntreBotoes);
    FAlturaBotao = MedirAltura(tcBotao);
    if (!EstahApertado()) FAlturaBotao = std::max(FAlturaBotao, FUnidades.Vertical(CAlturaBotao));
    FLadoIcone = TemIcone() ? FUnidades.Escalar(CLadoIcone) : 0;
    FEsquerda = FMargem + (TemIcone() ? FLadoIcone + FMargem : 0);
    if (FPartes.Edicao) {
        FAlturaEdicao = std::max(MedirAltura(tcCaixaEdicao), FUnidades.Vertical(CAlturaEdicao));
        FDistanciaEdicao = FUnidades.Vertical(CDistanciaPergunta);
    }
    if (FPartes.Progresso) {
        FAlturaProgresso = FUnidades.Vertical(CAlturaProgresso);
        FDistanciaEdicao = FUnidades.Vertical(CDistanciaPergunta);
    }
    if (TemRotulos() && FPartes.RotuloDaEdicao) FAlturaEdicao += MedirAltura(tcRotulo) + FDistanciaEdicao;
    FLinha = std::max(1, MedirAltura(tcMemorando, u"M\r\nM") - MedirAltura(tcMemorando));
    FBordasDoMemorando = MedirAltura(tcMemorando) - FLinha;
    if (FPartes.Corpo) FDistanciaCorpo = FUnidades.Vertical(CDistanciaPergunta);
    if (TemRotulos() && FPartes.RotuloDoCorpo)
        FDistanciaCorpo += MedirAltura(tcRotulo) + FUnidades.Vertical(CDistanciaPergunta);
}

void TDisposicao::MedirFilas() {
    const int disponivel = FArea.Largura - (TemAdicao() ? FEsquerda : FMargem) - FMargem;
    const int colunas = std::max(1, FNivel);
    const int maxima =
        FNivel < CNivelSemIcone ? disponivel : std::max(1, (disponivel - (colunas - 1) * FEntreBotoes) / colunas);
    for (const TBotao* botao : FBotoes) {
        const int largura = std::min(BuscarLargura(*botao, TemAdicao()), maxima);
        if (FFilas.empty() || FFilas.back().Largura + FEntreBotoes + largura > disponivel)
            FFilas.push_back({FLarguras.size(), -FEntreBotoes, 0});
        FFilas.back().Largura += FEntreBotoes + largura;
        FFilas.back().Botoes += largura;
        FLarguras.push_back(largura);
        FFilas.back().Fim = FLarguras.size();
    }
    const int filas = static_cast<int>(FFilas.size());
    FAlturaFilas = filas * FAlturaBotao + std::max(0, filas - 1) * FEntreFilas;
}

void TDisposicao::MedirCaixa() {
    if (!FPartes.Caixa) return;
    const std::u16string& texto = FPartes.Caixa->GetTexto();
    FCaixa = FToolkit.MedirControle(tcCaixaChecagem, texto, FArea.Largura - FEsquerda - FMargem);
    // A caption that would take the screen is shortened by the toolkit, which tells it in full.
    FCaixa.Altura = std::min(FCaixa.Altura, std::max(MedirAltura(tcCaixaChecagem), FArea.Altura / 4));
    if (!EstahApertado()) FCaixa.Altura = std::max(FCaixa.Altura, FUnidades.Vertical(CAlturaCaixa));
}

// Whole lines: the last one is never cut.
void TDisposicao::MedirDetalhe() {
    if (!FPartes.Detalhe) return;
    const int maxima = std::min(FUnidades.Vertical(CAlturaDetalhe), FArea.Altura / 3);
    const int linhas = FNivel < CNivelSemIcone ? std::max(1, (maxima - FBordasDoMemorando) / FLinha) : 1;
    FAlturaDetalhe = FBordasDoMemorando + linhas * FLinha;
}

// The size that shows all options; returns the least height.
int TDisposicao::MedirGrupo() {
    const auto& itens = FPartes.Grupo->GetItens();
    std::size_t maior = 0;
    for (const std::u16string& item : itens) maior = std::max(maior, item.size());
    const int regra = static_cast<int>(maior) * CLarguraPorLetra + CLarguraGrupo;
    FGrupo = {std::min(FUnidades.Escalar(regra), FArea.Largura - FEsquerda - FMargem), FUnidades.Escalar(CAlturaGrupo)};
    const int largura = std::max(1, FGrupo.Largura - FUnidades.Escalar(CMargensDoGrupo));
    for (const std::u16string& item : itens) {
        if (FGrupo.Altura > FArea.Altura) break;
        FGrupo.Altura +=
            std::max(FUnidades.Escalar(CAlturaOpcao), FToolkit.MedirControle(tcGrupoOpcoes, item, largura).Altura);
    }
    const int visiveis = FNivel == 0 ? CLinhasParaRolar : 1;
    return std::min(FGrupo.Altura, FUnidades.GetCaractere().Altura + FUnidades.Escalar(CEntreBotoesAdicao * 3) +
                                       visiveis * MedirAltura(tcGrupoOpcoes));
}

// The message and the options share what the others leave. False when one of them would show nothing.
bool TDisposicao::MedirMensagem() {
    int livre = FArea.Altura - 3 * FMargemVertical - FAlturaFilas;
    if (FPartes.Edicao) livre -= FDistanciaEdicao + FAlturaEdicao;
    if (FPartes.Progresso) livre -= FDistanciaEdicao + FAlturaProgresso;
    if (FPartes.Caixa) livre -= FDistancia + FCaixa.Altura;
    if (FPartes.Detalhe) livre -= FAlturaDetalhe + FMargemVertical;
    int maxima = std::min(std::max(FArea.Largura / 2, CMenosLetrasPorLinha * FUnidades.GetCaractere().Largura),
                          CLetrasPorLinha * FUnidades.GetCaractere().Largura);
    if (FPartes.TextoNaLargura) maxima = FUnidades.Horizontal(FPartes.LarguraMinima) - 2 * FMargem;
    maxima = std::max(1, std::min(maxima, FArea.Largura - FEsquerda - FMargem));
    const int minima = FBordasDoMemorando + (FNivel == 0 ? CLinhasParaRolar : 1) * FLinha;
    livre -= FDistanciaCorpo;
    FTexto = MedirTextoLimitado(FToolkit, FPartes.Mensagem->GetTexto(), {maxima, std::max(livre, 1)});
    if (FPartes.Progresso) {
        FTexto.Largura = std::max(FTexto.Largura, maxima);
        FTexto.Altura = std::max(FTexto.Altura, std::min(livre, CLinhasDoProgresso * FUnidades.GetCaractere().Altura));
    }
    if (FPartes.Grupo) {
        const int menor = MedirGrupo();
        livre -= FDistancia;
        const int daMensagem = std::min(FTexto.Altura, std::max(livre / 2, minima));
        FGrupo.Altura = std::min(FGrupo.Altura, std::max(livre - daMensagem, menor));
        livre -= FGrupo.Altura;
    }
    if (FPartes.Corpo) {
        const int daMensagem = std::min(FTexto.Altura, std::max(livre / 2, minima));
        FAlturaCorpo = std::clamp(livre - daMensagem, minima, FBordasDoMemorando + FPartes.LinhasDoCorpo * FLinha);
        livre -= FAlturaCorpo;
    }
    FCabe = FTexto.Largura <= maxima && FTexto.Altura <= livre;
    if (FCabe) return true;
    // Whole lines: the last one is never cut.
    const int desejada = std::max(FTexto.Altura, CLinhasParaRolar * FLinha);
    const int linhas = std::max(1, std::min(livre - FBordasDoMemorando, desejada) / FLinha);
    FAlturaMemorando = FBordasDoMemorando + linhas * FLinha;
    FTexto = {maxima, std::min(FTexto.Altura, FAlturaMemorando)};
    return livre >= minima;
}

void TDisposicao::MedirCliente() {
    int fila = 0;
    int botoes = 0;
    for (const TFila& f : FFilas) {
        fila = std::max(fila, f.Largura);
        botoes = std::max(botoes, f.Botoes);
    }
    // Title bars are bold and hold an icon and buttons.
    const int titulo = FToolkit.MedirTexto(FFormulario.GetTitulo().substr(0, 1024), 0).Largura * 5 / 4;
    const int conteudo = std::max({FTexto.Largura, FGrupo.Largura, FCaixa.Largura});
    int largura = std::max({FEsquerda + conteudo + FMargem, fila + FMargem + (TemAdicao() ? FEsquerda : FMargem),
                            std::min(FArea.Largura / 2, titulo + FUnidades.Escalar(CBotoesDoTitulo)),
                            FUnidades.Horizontal(FPartes.LarguraMinima)});
    if (TemAdicao() && !EstahApertado()) {
        int semAdicao = 2 * FMargem - FUnidades.Horizontal(CEspacoEntreBotoes);
        for (const TBotao* botao : FBotoes)
            semAdicao += BuscarLargura(*botao, false) + FUnidades.Horizontal(CEspacoEntreBotoes);
        largura = std::max(
            {largura, semAdicao, std::max({botoes, FGrupo.Largura, FCaixa.Largura}) + FUnidades.Escalar(CFolgaDaFila)});
    }
    FCliente.Largura = std::min(largura, FArea.Largura);

    const int mensagem = std::max(FLadoIcone, FCabe ? FTexto.Altura : FAlturaMemorando);
    FCliente.Altura = 3 * FMargemVertical + mensagem + FAlturaFilas;
    if (FPartes.Edicao) FCliente.Altura += FDistanciaEdicao + FAlturaEdicao;
    if (FPartes.Progresso) FCliente.Altura += FDistanciaEdicao + FAlturaProgresso;
    FCliente.Altura += FDistanciaCorpo + FAlturaCorpo;
    if (FPartes.Caixa) FCliente.Altura += FCaixa.Altura + FDistancia;
    if (FPartes.Grupo) FCliente.Altura += FGrupo.Altura + FDistancia;
    FPartes.CrescimentoDoDetalhe = FPartes.Detalhe ? FAlturaDetalhe + FMargemVertical : 0;
    if (!FPartes.Grupo) return;
    const int falta = FUnidades.Escalar(CCrescimentoMinimo) - FGrupo.Altura - FDistancia;
    if (falta > 0 && FCliente.Altura + falta <= FArea.Altura) FFolgaDoFim = falta;
    FCliente.Altura += FFolgaDoFim;
}

bool TDisposicao::Medir() {
    MedirDistancias();
    MedirFilas();
    MedirCaixa();
    MedirDetalhe();
    const bool cabe = MedirMensagem();
    MedirCliente();
    return cabe && FCliente.Altura + FPartes.CrescimentoDoDetalhe <= FArea.Altura;
}

void TDisposicao::AplicarMensagem() {
    if (FPartes.Icone) {
        FPartes.Icone->SetRetangulo({FMargem, FMargemVertical, FLadoIcone, FLadoIcone});
        FPartes.Icone->SetVisivel(TemIcone());
    }
    FPartes.Mensagem->SetRetangulo({FEsquerda, FMargemVertical, FTexto.Largura, FTexto.Altura});
    FPartes.Mensagem->SetVisivel(FCabe);
    if (!FCabe && !FPartes.Rolagem) {
        FPartes.Rolagem = &FFormulario.Adicionar<TMemorando>();
        FPartes.Rolagem->SetNome(CNomeDaRolagem);
        FPartes.Rolagem->SetSomenteLeitura(true);
        FPartes.Rolagem->SetTexto(FPartes.Mensagem->GetTexto());
        const auto& controles = FFormulario.GetControles();
        const auto mensagem = std::find_if(controles.begin(), controles.end(),
                                           [&](const auto& c) { return c.get() == FPartes.Mensagem; });
        FFormulario.ColocarAntes(*FPartes.Rolagem, **(mensagem + 1));
    }
    if (!FPartes.Rolagem) return;
    FPartes.Rolagem->SetTexto(FPartes.Mensagem->GetTexto());
    FPartes.Rolagem->SetRetangulo({FEsquerda, FMargemVertical, FTexto.Largura, FAlturaMemorando});
    FPartes.Rolagem->SetVisivel(!FCabe);
}

// Buttons in rows from ATopo; returns where they end. With options the rows start below the group, else each is
// centred.
int TDisposicao::AplicarFilas(int ATopo) {
    std::size_t k = 0;
    int topo = ATopo;
    for (const TFila& fila : FFilas) {
        int esquerda = TemAdicao() ? FEsquerda : (FCliente.Largura - fila.Largura) / 2;
        for (; k < fila.Fim; ++k) {
            FBotoes[k]->SetRetangulo({esquerda, topo, FLarguras[k], FAlturaBotao});
            esquerda += FLarguras[k] + FEntreBotoes;
        }
        topo += FAlturaBotao + FEntreFilas;
    }
    return ATopo + FAlturaFilas;
}

// The boxes below the message, each below its label; returns where they end.
int TDisposicao::AplicarEntrada(int ATopo) {
    const int largura = FCliente.Largura - 2 * FMargem;
    const int rotulo = MedirAltura(tcRotulo);
    const int distancia = FUnidades.Vertical(CDistanciaPergunta);
    int y = ATopo;
    const auto por = [&](TControleFormulario* ARotulo, TControleFormulario& AControle, int AAltura) {
        y += distancia;
        if (ARotulo) ARotulo->SetVisivel(TemRotulos());
        if (ARotulo && TemRotulos()) {
            ARotulo->SetRetangulo({FMargem, y, largura, rotulo});
            y += rotulo + distancia;
            AAltura -= rotulo + distancia;
        }
        AControle.SetRetangulo({FMargem, y, largura, AAltura});
        y += AAltura;
    };
    if (FPartes.Edicao) por(FPartes.RotuloDaEdicao, *FPartes.Edicao, FAlturaEdicao);
    if (FPartes.Progresso) por(nullptr, *FPartes.Progresso, FAlturaProgresso);
    if (FPartes.Corpo) por(FPartes.RotuloDoCorpo, *FPartes.Corpo, FAlturaCorpo + FDistanciaCorpo - distancia);
    return y;
}

void TDisposicao::Aplicar() {
    AplicarMensagem();
    int y = FMargemVertical + std::max(FLadoIcone, FCabe ? FTexto.Altura : FAlturaMemorando);
    y = AplicarEntrada(y);
    y += FMargemVertical;
    if (FPartes.Grupo) {
        FPartes.Grupo->SetRetangulo({FEsquerda, y, FGrupo.Largura, FGrupo.Altura});
        y += FGrupo.Altura + FDistancia;
    }
    if (FPartes.Caixa && !FPartes.CaixaAbaixo) {
        FPartes.Caixa->SetRetangulo({FEsquerda, y, FCaixa.Largura, FCaixa.Altura});
        y += FCaixa.Altura + FDistancia;
    }
    y = AplicarFilas(y);
    if (FPartes.Caixa && FPartes.CaixaAbaixo)
        FPartes.Caixa->SetRetangulo({FEsquerda, y + FDistancia, FCaixa.Largura, FCaixa.Altura});
    int altura = FCliente.Altura;
    if (FPartes.Detalhe) {
        FPartes.Detalhe->SetRetangulo({FMargem, altura, FCliente.Largura - 2 * FMargem, FAlturaDetalhe});
        if (FPartes.Detalhe->GetVisivel()) altura += FPartes.CrescimentoDoDetalhe;
    }
    FFormulario.SetTamanhoCliente(FCliente.Largura, altura);
}

}  // namespace

void DisporDialogo(TFormulario& AFormulario, TPartesDoDialogo& APartes) {
    const int ultimo = std::max(CNivelSemIcone, static_cast<int>(AFormulario.GetBotoes().size()));
    for (int nivel = 0;; ++nivel) {
        TDisposicao disposicao(AFormulario, APartes, nivel);
        if (!disposicao.Medir() && nivel < ultimo) continue;
        disposicao.Aplicar();
        return;
    }
}

}  // namespace OryUtils
