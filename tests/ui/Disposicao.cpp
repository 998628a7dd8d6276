#include "oryutils/ui/OryUtilsDialogs.hpp"

#include "ToolkitRoteirizado.hpp"

#include <cfenv>
#include <cmath>
#include <random>

namespace OryUtils {
namespace {

const std::vector<TMsgDlgBtn> CTresBotoes{mbYes, mbNo, mbCancel};
const std::vector<std::u16string> CTresCaptions{u"&Sim", u"&Não, deixe como estava antes", u"&Cancelar"};

std::vector<TRetangulo> BuscarRetangulos(const TFormulario& AFormulario) {
    std::vector<TRetangulo> retangulos;
    for (const auto& controle : AFormulario.GetControles()) retangulos.push_back(controle->GetRetangulo());
    return retangulos;
}

// Every visible control inside the client area, the client area inside the screen, nothing over anything else.
void ConferirEncaixe(const TFormulario& AFormulario) {
    EXPECT_LE(AFormulario.GetLarguraCliente(), 800);
    EXPECT_LE(AFormulario.GetAlturaCliente(), 600);
    const auto& controles = AFormulario.GetControles();
    for (std::size_t i = 0; i < controles.size(); ++i) {
        const auto& a = *controles[i];
        if (!a.GetVisivel()) continue;
        EXPECT_TRUE(a.GetLeft() >= 0 && a.GetTop() >= 0 && a.GetWidth() > 0 && a.GetHeight() > 0 &&
                    a.GetLeft() + a.GetWidth() <= AFormulario.GetLarguraCliente() &&
                    a.GetTop() + a.GetHeight() <= AFormulario.GetAlturaCliente())
            << "control " << i << " of kind " << a.GetTipo();
        for (std::size_t j = 0; j < i; ++j) {
            const auto& b = *controles[j];
            const bool separados = a.GetLeft() >= b.GetLeft() + b.GetWidth() ||
                                   b.GetLeft() >= a.GetLeft() + a.GetWidth() ||
                                   a.GetTop() >= b.GetTop() + b.GetHeight() || b.GetTop() >= a.GetTop() + a.GetHeight();
            EXPECT_TRUE(!b.GetVisivel() || separados) << "controls " << j << " and " << i;
        }
    }
}

TEST_F(TesteDialogos, LarguraDoBotaoPelaFormula) {
    TFormulario formulario;
    auto& botao = formulario.Adicionar<TBotao>();
    ASSERT_EQ(std::fegetround(), FE_TONEAREST);
    for (std::size_t letras = 0; letras < 300; ++letras) {
        botao.SetTexto(std::u16string(letras, u'x'));
        const int esperada = std::max(75, static_cast<int>(std::nearbyint(8.0 * static_cast<double>(letras) * 8 / 11)));
        ASSERT_EQ(Dialogos.BuscarTamanhoBotao(botao), esperada) << letras;
        ASSERT_EQ(OryMsg::GetTamanhoBotoes(botao), esperada) << letras;
    }
    EXPECT_EQ(GetAveCharSize(Toolkit), (TTamanho{CLarguraLetra, CAlturaLinha}));
}

TEST_F(TesteDialogos, FormularioPadrao) {
    const auto formulario =
        OryMsg::GetConfirmationCustomForm(u"Gravar?", mtConfirmation, CTresBotoes, mrNo, u"T", CTresCaptions);
    // Units of 6/4 across and 13/8 down: margins 7 are 10 and 11, a button 50 x 14 is 75 x 23, the space 4 is 6.
    const auto botoes = formulario->GetBotoes();
    const auto* texto = formulario->BuscarControle(u"Message");
    EXPECT_EQ(formulario->BuscarControle(u"Image")->GetRetangulo(), (TRetangulo{10, 11, 32, 32}));
    EXPECT_EQ(texto->GetRetangulo(), (TRetangulo{52, 11, 42, 13}));
    EXPECT_EQ(botoes[0]->GetRetangulo(), (TRetangulo{10, 54, 75, 23}));
    EXPECT_EQ(botoes[1]->GetRetangulo(), (TRetangulo{91, 54, 28 * 6 + 18, 23})) << "as wide as its caption";
    EXPECT_EQ(botoes[2]->GetRetangulo(), (TRetangulo{283, 54, 75, 23}));
    EXPECT_EQ(formulario->GetLarguraCliente(), 368);
    EXPECT_EQ(formulario->GetAlturaCliente(), 88);
    const auto fatos = TOryUtilsDialogs::BuscarInformarcoesFormMensagem(*formulario);
    EXPECT_EQ(fatos, (TOryUtilsDialogsInfoFormMensagemIOP{.PosicaoEsquerdaTexto = 52,
                                                          .LarguraPrimeiroBotao = 75,
                                                          .LarguraTotalTextoFormulario = 42,
                                                          .LarguraTotalFormulario = 78 + (169 + 3) + 78,
                                                          .PosicaoTopoBotoes = 54}));
    EXPECT_EQ(TOryUtilsDialogs::BuscarInformarcoesFormMensagem(TFormulario{}), TOryUtilsDialogsInfoFormMensagemIOP{});
}

// The options layout, step by step on the form before it.
TEST_F(TesteDialogos, OpcoesPeloAlgoritmo) {
    const struct {
        std::vector<std::u16string> Opcoes;
        int Padrao, Indice, LarguraGrupo;
        const char* Porque;
    } casos[] = {
        {{}, 0, -1, 150, "no options: the form still grows by 100"},
        {{u"Uma"}, 5, -1, 162, "default outside the list"},
        {{u"Uma", std::u16string(30, u'o'), u"Outra"}, 2, 2, 270, "30 characters make 270 pixels"},
        {std::vector<std::u16string>(12, std::u16string(120, u'z')), -1, -1, 630, "wider than the buttons"},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.Porque);
        const auto base =
            OryMsg::GetConfirmationCustomForm(u"Qual?", mtConfirmation, CTresBotoes, mrNo, u"T", CTresCaptions);
        const int topo = base->GetBotoes()[0]->GetTop();
        const int altura = 40 + 20 * static_cast<int>(caso.Opcoes.size());
        Toolkit.Roteiro.push_back([&](TFormulario& AFormulario) {
            const auto* grupo = dynamic_cast<TGrupoOpcoes*>(AFormulario.BuscarControle(u"Opcoes"));
            ASSERT_TRUE(grupo);
            EXPECT_EQ(grupo->GetTexto(), u"Opções: ");
            EXPECT_TRUE(grupo->GetQuebraLinha());
            EXPECT_EQ(grupo->GetItens(), caso.Opcoes);
            EXPECT_EQ(grupo->GetRetangulo(), (TRetangulo{52, topo, caso.LarguraGrupo, altura}));
            const auto botoes = AFormulario.GetBotoes();
            const int abaixo = topo + altura + 15;
            EXPECT_EQ(botoes[0]->GetRetangulo(), (TRetangulo{52, abaixo, 75, 23}));
            EXPECT_EQ(botoes[1]->GetRetangulo(), (TRetangulo{130, abaixo, 28 * 6 + 12, 23}))
                << "169 by the rule: less than the caption needs";
            EXPECT_EQ(botoes[2]->GetRetangulo(), (TRetangulo{313, abaixo, 75, 23}));
            EXPECT_EQ(AFormulario.GetAlturaCliente(), base->GetAlturaCliente() + std::max(altura + 15, 100));
            EXPECT_EQ(AFormulario.GetLarguraCliente(), std::max(330, caso.LarguraGrupo) + 100);
            ConferirEncaixe(AFormulario);
            EXPECT_EQ(AFormulario.GetControleAtivo(), botoes[1]) << "the focus stays on the default";
            botoes[0]->Clicar();
        });
        Toolkit.MensagensProcessadas = 0;
        TOryUtilsDialogsFormCustomizadoComOpcoesIOP parametros;
        parametros.Assign(
            TOryUtilsDialogsFormCustomizadoBaseIOP{u"T", mrNo, mtConfirmation, u"Qual?", CTresBotoes, CTresCaptions});
        parametros.OpcaoPadrao = caso.Padrao;
        parametros.OpcoesMensagem = caso.Opcoes;
        const auto retorno = Dialogos.ConfirmacaoCustomizadaComOpcoes(parametros);
        EXPECT_EQ(retorno->IndiceOpcao, caso.Indice);
        EXPECT_EQ(retorno->RetornoMensagem, mrYes);
        EXPECT_GE(Toolkit.MensagensProcessadas, static_cast<int>(caso.Opcoes.size()) + 3);
    }
    int opcao = 0;
    Toolkit.Roteiro.push_back([](TFormulario& AFormulario) {
        dynamic_cast<TGrupoOpcoes&>(*AFormulario.BuscarControle(u"Opcoes")).AceitarIndice(1);
    });
    EXPECT_EQ(OryMsg::ConfirmationCustom(u"?", mtError, {mbOK}, 0, u"T", {u"O&K"}, {u"a", u"b"}, opcao), mrCancel);
    EXPECT_EQ(opcao, 1);
}

TEST_F(TesteDialogos, CaixaDeChecagem) {
    for (const auto posicao : {pccAcima, pccAbaixo}) {
        const auto base = OryMsg::GetConfirmationCustomForm(u"?", mtConfirmation, CTresBotoes, 0, u"T", CTresCaptions);
        Toolkit.Roteiro.push_back([&](TFormulario& AFormulario) {
            auto* caixa = dynamic_cast<TCaixaChecagem*>(AFormulario.BuscarControle(u"CaixaChecagem"));
            ASSERT_TRUE(caixa);
            EXPECT_EQ(caixa->GetTexto(), u"Não perguntar &mais");
            EXPECT_FALSE(caixa->GetMarcada());
            const TBotao& botao = *AFormulario.GetBotoes()[0];
            EXPECT_EQ(botao.GetTop(), base->GetBotoes()[0]->GetTop() + (posicao == pccAcima ? 16 + 15 : 0));
            EXPECT_EQ(caixa->GetTop(), posicao == pccAcima ? base->GetBotoes()[0]->GetTop() : botao.GetTop() + 23 + 15);
            EXPECT_EQ(caixa->GetLeft(), 52);
            ConferirEncaixe(AFormulario);
            caixa->AceitarMarcada(true);
            if (posicao == pccAbaixo) AFormulario.GetBotoes()[2]->Clicar();
        });
        bool marcada = false;
        EXPECT_EQ(
            Dialogos.ConfirmacaoCustomizadaComCaixaChecagem(u"?", mtConfirmation, CTresBotoes, 0, u"T", CTresCaptions,
                                                            u"Não perguntar &mais", posicao, marcada),
            mrCancel);
        EXPECT_TRUE(marcada);
    }
}

// Hostile and long texts in every part: buttons always show, and both generations build the same form.
TEST_F(TesteDialogos, QualquerTextoCabeNaTela) {
    const auto semente = std::random_device{}();
    SCOPED_TRACE(semente);
    std::mt19937 sorteio(semente);
    const auto sortear = [&](unsigned AAte) { return std::uniform_int_distribution<unsigned>(0, AAte)(sorteio); };
    const auto gerar = [&](unsigned ALetras) {
        std::u16string texto(sortear(ALetras), u'\0');
        const unsigned brancos = sortear(20);
        for (char16_t& c : texto)
            c = sortear(20) < brancos ? (sortear(5) ? u' ' : u'\n') : static_cast<char16_t>(sortear(0xFFFF));
        return texto;
    };
    std::vector<std::u16string> mensagens{u"", std::u16string(1 << 20, u'a'), std::u16string(1 << 20, u'\n')};
    for (const unsigned letras : {100U, 1000U, 10000U, 100000U})
        for (int i = 0; i < 10; ++i) mensagens.push_back(gerar(letras));
    for (const auto& mensagem : mensagens) {
        const auto conferir = [&](TFormulario& AFormulario) {
            EXPECT_EQ(BuscarTexto(AFormulario, u"Message"), mensagem);
            ConferirEncaixe(AFormulario);
            if (auto* detalhes = dynamic_cast<TBotao*>(AFormulario.BuscarControle(u"Detalhes"))) {
                detalhes->Clicar();
                ConferirEncaixe(AFormulario);
            }
        };
        TOryUtilsDialogsFormCustomizadoComOpcoesIOP parametros;
        parametros.Mensagem = mensagem;
        parametros.TipoDialogo = static_cast<TMsgDlgType>(sortear(5));
        parametros.Titulo = gerar(200);
        parametros.OpcoesMensagem = {u"a", gerar(100)};
        for (unsigned i = sortear(5); i < 6; ++i) {
            parametros.Botoes.push_back(static_cast<TMsgDlgBtn>(sortear(11)));
            parametros.CaptionBotoes.push_back(gerar(15));
        }
        const auto nova = Dialogos.BuscarFormularioConfirmacaoCustomizado(parametros);
        const auto antiga = OryMsg::GetConfirmationCustomForm(mensagem, parametros.TipoDialogo, parametros.Botoes, 0,
                                                              parametros.Titulo, parametros.CaptionBotoes);
        EXPECT_EQ(BuscarRetangulos(*nova), BuscarRetangulos(*antiga));
        // An invisible label of no size is a text without characters.
        if (!mensagem.empty()) conferir(*nova);
        if (mensagem.empty()) continue;
        Toolkit.Roteiro = {conferir, conferir};
        Dialogos.ConfirmacaoCustomizadaComOpcoes(parametros);
        Dialogos.InformacaoDetalhada({.Mensagem = mensagem, .MensagemDetalhe = u"d"});
        if (HasFailure()) break;
    }
}

}  // namespace
}  // namespace OryUtils
