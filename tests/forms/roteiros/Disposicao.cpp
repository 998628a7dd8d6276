// Any dialog on any screen: everything can be read and reached. Read back from the native controls.
#include "oryutils/characters/Utf.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include "forms/roteiros/Roteiros.hpp"
#include "resistencia/Quantidade.hpp"

#include <algorithm>
#include <random>

namespace OryUtils {
namespace {

// Lines may be broken anywhere; what is told is the same without blanks.
std::u16string SemBrancos(std::u16string_view ATexto) {
    std::u16string texto;
    for (const char16_t c : ATexto)
        if (c != u' ' && c != u'\r' && c != u'\n') texto += c;
    return texto;
}

class TSorteio {
public:
    explicit TSorteio(unsigned ASemente) : FSorteio(ASemente) {}
    int Ate(int AMaximo) { return std::uniform_int_distribution<int>(0, AMaximo)(FSorteio); }
    /// Words and rarely one endless word, small letters or capitals, accents, "&", line breaks where ALinhas.
    std::u16string Texto(int ALetras, bool ALinhas) {
        static constexpr std::u16string_view CMinusculas = u"aeioumnrstlcdpigáçãéõ&w.,";
        static constexpr std::u16string_view CMaiusculas = u"AEIOUMNRSTLCDPIGÁÇÃÉÕ&W.,";
        const auto letras = Ate(2) == 0 ? CMaiusculas : CMinusculas;
        const int palavra = Ate(9) == 0 ? 200 : 8;
        std::u16string texto;
        for (int i = Ate(ALetras); i > 0; --i) {
            const bool branco = Ate(palavra) == 0;
            if (branco && ALinhas && Ate(9) == 0)
                texto += u"\r\n";
            else
                texto += branco ? u' ' : letras[static_cast<std::size_t>(Ate(static_cast<int>(letras.size()) - 1))];
        }
        return texto;
    }

private:
    std::mt19937 FSorteio;
};

struct TDialogo {
    enum TTipo { tdCustomizado, tdOpcoes, tdCaixa, tdDetalhe, tdEntrada, tdLinhas, tdEscolha } Tipo{};
    bool TemBotoesProprios() const { return Tipo < tdEntrada; }
    TOryUtilsDialogsFormCustomizadoComOpcoesIOP Parametros;
    std::u16string Outro;  ///< caption of the check box, detail

    std::vector<std::u16string> BuscarTextos() const {
        std::vector<std::u16string> textos{Parametros.Mensagem};
        if (TemBotoesProprios()) {
            const auto quantos = TMsgDlgButtons(Parametros.Botoes).GetQuantidade();
            for (std::size_t i = 0; i < quantos; ++i) textos.push_back(Parametros.CaptionBotoes[i]);
        }
        if (Tipo == tdOpcoes)
            textos.insert(textos.end(), Parametros.OpcoesMensagem.begin(), Parametros.OpcoesMensagem.end());
        if (Tipo == tdCaixa) textos.push_back(Outro);
        return textos;
    }
};

TDialogo Sortear(TSorteio& ASorteio) {
    TDialogo dialogo;
    dialogo.Tipo = static_cast<TDialogo::TTipo>(ASorteio.Ate(6));
    auto& p = dialogo.Parametros;
    p.TipoDialogo = static_cast<TMsgDlgType>(ASorteio.Ate(4));
    p.Titulo = ASorteio.Texto(60, false);
    p.Mensagem = ASorteio.Texto(ASorteio.Ate(1) ? 120 : 5000, true);
    for (int i = ASorteio.Ate(ASorteio.Ate(2) ? 2 : 11); i >= 0; --i) {
        p.Botoes.push_back(static_cast<TMsgDlgBtn>(ASorteio.Ate(11)));
        p.CaptionBotoes.push_back(ASorteio.Texto(ASorteio.Ate(4) ? 12 : 60, false));
    }
    p.OpcaoPadrao = 0;
    for (int i = ASorteio.Ate(ASorteio.Ate(3) ? 5 : 40); i >= 0; --i)
        p.OpcoesMensagem.push_back(ASorteio.Texto(ASorteio.Ate(4) ? 25 : 200, false));
    dialogo.Outro = ASorteio.Texto(200, dialogo.Tipo == TDialogo::tdDetalhe);
    return dialogo;
}

void Mostrar(TOryUtilsDialogs& ADialogos, const TDialogo& ADialogo) {
    const auto& p = ADialogo.Parametros;
    std::u16string valor = u"valor";
    switch (ADialogo.Tipo) {
        case TDialogo::tdCustomizado:
            ADialogos.ConfirmacaoCustomizada(p);
            break;
        case TDialogo::tdOpcoes:
            ADialogos.ConfirmacaoCustomizadaComOpcoes(p);
            break;
        case TDialogo::tdCaixa: {
            bool marcada = false;
            ADialogos.ConfirmacaoCustomizadaComCaixaChecagem(
                p.Mensagem, p.TipoDialogo, p.Botoes, 0, p.Titulo, p.CaptionBotoes, ADialogo.Outro,
                p.OpcoesMensagem.size() % 2 ? pccAcima : pccAbaixo, marcada);
            break;
        }
        case TDialogo::tdDetalhe: {
            TOryUtilsDialogsFormCustomizadoComDetalhesIOP detalhe;
            static_cast<TOryUtilsDialogsFormCustomizadoBaseIOP&>(detalhe) = p;
            detalhe.MensagemDetalhe = u"d" + ADialogo.Outro;
            ADialogos.ConfirmacaoCustomizadaComDetalhes(detalhe);
            break;
        }
        case TDialogo::tdEntrada:
            ADialogos.InputQuery(p.Titulo, p.Mensagem, valor);
            break;
        case TDialogo::tdLinhas:
            ADialogos.PedirLinhas({.Titulo = p.Titulo, .Pergunta = p.Mensagem}, valor);
            break;
        case TDialogo::tdEscolha: {
            std::vector<std::int32_t> escolhidos;
            ADialogos.PedirEscolha({.Titulo = p.Titulo,
                                    .Pergunta = p.Mensagem,
                                    .Itens = p.OpcoesMensagem,
                                    .Varios = p.OpcoesMensagem.size() % 2 == 0},
                                   escolhidos);
            break;
        }
    }
}

bool EstahDentro(const TRetangulo& A, const TRetangulo& AFora) {
    return A.Left >= AFora.Left && A.Top >= AFora.Top && A.Left + A.Width <= AFora.Left + AFora.Width &&
           A.Top + A.Height <= AFora.Top + AFora.Height;
}

std::string Descrever(const TRetangulo& r) {
    return std::to_string(r.Left) + "," + std::to_string(r.Top) + " " + std::to_string(r.Width) + "x" +
           std::to_string(r.Height);
}

void ConferirTextos(const std::vector<TNativo>& ANativos, const std::vector<std::u16string>& ATextos) {
    for (const std::u16string& texto : ATextos) {
        const std::u16string inteiro = SemBrancos(texto);
        const std::u16string dica = SemBrancos(RemoverAtalho(texto));
        const bool contado = inteiro.empty() || std::any_of(ANativos.begin(), ANativos.end(), [&](const TNativo& n) {
                                 return (n.Cabe && SemBrancos(n.Texto) == inteiro) || SemBrancos(n.Dica) == dica;
                             });
        EXPECT_TRUE(contado) << "neither shown nor told in full: " << ParaUtf8(texto.substr(0, 80));
    }
}

void ConferirLugares(const std::vector<TNativo>& ANativos, const TRetangulo& ACliente) {
    for (std::size_t i = 0; i < ANativos.size(); ++i) {
        const TNativo& a = ANativos[i];
        if (a.Rolado) continue;
        EXPECT_TRUE(EstahDentro(a.Lugar, ACliente)) << Descrever(a.Lugar) << " " << ParaUtf8(a.Texto.substr(0, 40));
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_TRUE(ANativos[j].Rolado || !SeTocam(a.Lugar, ANativos[j].Lugar))
                << Descrever(a.Lugar) << " and " << Descrever(ANativos[j].Lugar);
    }
}

// From the uppermost on: down, and from left to right in a row.
void ConferirTabulacao(std::vector<TRetangulo> ALugares, const std::vector<TNativo>& ANativos) {
    const auto antes = [](const TRetangulo& A, const TRetangulo& B) {
        return A.Top != B.Top ? A.Top < B.Top : A.Left < B.Left;
    };
    std::rotate(ALugares.begin(), std::min_element(ALugares.begin(), ALugares.end(), antes), ALugares.end());
    EXPECT_TRUE(std::is_sorted(ALugares.begin(), ALugares.end(), antes)) << "not in reading order";
    // One stop for all options.
    const bool opcoes = std::any_of(ANativos.begin(), ANativos.end(), [](const TNativo& n) { return n.EhOpcao; });
    const auto paradas =
        std::count_if(ANativos.begin(), ANativos.end(), [](const TNativo& n) { return n.Focavel && !n.EhOpcao; });
    EXPECT_EQ(static_cast<long>(ALugares.size()), static_cast<long>(paradas) + opcoes);
}

TEST_F(Roteiro, QualquerDialogoCabeEmQualquerTela) {
    // The long form looks for dialogs that nobody tried yet.
    const bool longa = Testes::Quantidade(0, 1) == 1;
    const unsigned semente = longa ? std::random_device{}() : 20261122u;
    TOryUtilsDialogs dialogos;
    const auto telas = FUsuario->BuscarTelas();
    TSorteio sorteio(semente);
    for (int vez = 0; vez < Testes::Quantidade(100, 1000) && !HasFailure(); ++vez) {
        const int ultima = static_cast<int>(telas.size()) - 1;
        auto tela = static_cast<std::size_t>(sorteio.Ate(ultima));
        const TDialogo dialogo = Sortear(sorteio);
        FUsuario->AbrirEm(tela);
        const auto conferir = [&] {
            SCOPED_TRACE(testing::Message() << "seed " << semente << ", dialog " << vez << " of kind " << dialogo.Tipo
                                            << ", work area " << Descrever(telas[tela]));
            const TVisao visao = FUsuario->Medir();
            EXPECT_TRUE(EstahDentro(visao.Janela, telas[tela])) << "window " << Descrever(visao.Janela);
            ConferirTextos(visao.Controles, dialogo.BuscarTextos());
            ConferirLugares(visao.Controles, {0, 0, visao.Cliente.Largura, visao.Cliente.Altura});
            ConferirTabulacao(visao.Tabulacao, visao.Controles);
        };
        const TPassos passos{conferir,
                             [&] { FUsuario->ClicarSeHouver(u"Mostrar &Detalhes"); },
                             conferir,
                             [&] {
                                 if (ultima == 0) return;
                                 // On one of the same size a dialog stays as it is, where it was dropped.
                                 const TRetangulo antes = telas[tela];
                                 while (telas[tela].Width == antes.Width)
                                     tela = static_cast<std::size_t>(sorteio.Ate(ultima));
                                 FUsuario->ArrastarPara(tela);
                             },
                             conferir,
                             [&] { FUsuario->FecharJanela(); }};
        FUsuario->Conduzir(passos, [&] { Mostrar(dialogos, dialogo); });
    }
}

TEST_F(Roteiro, AMensagemTemNoMaximoNoventaLetrasDeLargura) {
    TOryUtilsDialogs dialogos;
    const auto telas = FUsuario->BuscarTelas();
    for (std::size_t tela = 0; tela < telas.size(); ++tela) {
        FUsuario->AbrirEm(tela);
        std::u16string mensagem;
        for (int i = 0; i < 60; ++i) mensagem += u"palavra ";
        const auto olhar = BuscarToolkit().LigarTemporizador(5, [&] {
            if (!FUsuario->HaFormulario()) return;
            const int noventa = BuscarToolkit().MedirTexto(std::u16string(90, u'n'), 0).Largura;
            for (const TNativo& n : FUsuario->Medir().Controles) EXPECT_LE(n.Lugar.Width, noventa * 11 / 10) << tela;
            FUsuario->FecharJanela();
        });
        dialogos.Informacao(mensagem);
        BuscarToolkit().DesligarTemporizador(olhar);
    }
}

TEST_F(Roteiro, OTituloDeUmaMensagemCurtaCabeNaBarra) {
    TOryUtilsDialogs dialogos;
    const auto telas = FUsuario->BuscarTelas();
    for (std::size_t tela = 0; tela < telas.size(); ++tela) {
        FUsuario->AbrirEm(tela);
        const TPassos passos{[&] {
            // Beside it stand at least an icon and a button, as high as the line.
            const TTamanho titulo = BuscarToolkit().MedirTexto(u"Informação", 0);
            EXPECT_GE(FUsuario->Medir().Janela.Width, titulo.Largura + 3 * titulo.Altura) << tela;
            FUsuario->FecharJanela();
        }};
        FUsuario->Conduzir(passos, [&] { dialogos.Informacao(u"Ok"); });
    }
}

}  // namespace
}  // namespace OryUtils
