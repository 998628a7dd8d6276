#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"

#include "registry_numbers/Frame.hpp"

namespace OryUtils {
namespace {

using namespace OryTypes;

struct TBotaoQueNaoEhControle : TObjeto {};

TEST_F(Frame, AplicacaoAoControle) {
    EXPECT_TRUE(ValidarCampo(nullptr, &Controle));
    EXPECT_TRUE(ValidarCampo(&Controle, &Controle));
    EXPECT_FALSE(ValidarCampo(&Outro, &Controle)) << "another control's handler";
    const TBotaoQueNaoEhControle botao;
    EXPECT_FALSE(ValidarCampo(&botao, &Controle)) << "a sender that is no control";
    EXPECT_FALSE(ValidarCampo(nullptr, static_cast<TWinControl*>(nullptr)));
    Outro.Identidade = Controle.Identidade;
    EXPECT_TRUE(ValidarCampo(&Outro, &Controle)) << "two adapters of one control";

    TWinControl* const controles[] = {nullptr, &Outro, &Controle};
    Outro.Focavel = false;
    EXPECT_TRUE(ValidarCampo(&Controle, controles)) << "the last one applies";
    Controle.Focavel = false;
    EXPECT_FALSE(ValidarCampo(&Controle, controles));
    EXPECT_FALSE(ValidarCampo(nullptr, std::span<TWinControl* const>{}));
}

TEST_F(Frame, RelatoSemControleNaoMudaOFoco) {
    EXPECT_THROW(TOryUtilsValidacoes::TratarResultadoValidacao(nullptr, u"Falhou."), EAbort);
    EXPECT_EQ(GRelatos, (std::vector<std::u16string>{u"Falhou."}));
}

TEST_F(Frame, Documentos) {
    struct TCaso {
        int Tipo;
        std::u16string_view Certo, Errado;
        const char* Mensagem;
    };
    const TCaso casos[] = {
        {1, u"11.222.333/0001-81", u"11.222.333/0001-80", "CNPJ inválido. Verifique."},
        {2, u"529.982.247-25", u"529.982.247-24", "CPF inválido. Verifique."},
        {3, u"11.583.00249/85", u"11.583.00249/84", "CEI inválido. Verifique."},
        {4, u"12345678919", u"12345678918", "PIS inválido. Verifique."},
        {6, u"12345678900", u"12345678910", "CNH inválida. Verifique."},
        {10, u"11.583.00249/85", u"11.583.00249/84", "CNO inválida. Verifique."},
        {5, u" ", u"qualquer", ""},
        {99, u"", u"qualquer", ""},
    };
    for (const TCaso& caso : casos) {
        const auto tipo = static_cast<TTipoInscricao>(caso.Tipo);
        const auto conferir = [&](std::u16string_view ANumero) {
            return Relato([&] { ValidarDocumento(&Controle, &Controle, ANumero, tipo); });
        };
        EXPECT_EQ(conferir(caso.Certo), "nada") << caso.Tipo;
        EXPECT_EQ(conferir(caso.Errado), caso.Mensagem) << caso.Tipo;
        EXPECT_EQ(ValidarDocumento(&Outro, &Controle, caso.Certo, tipo), caso.Tipo != 5 && caso.Tipo != 99);
        EXPECT_FALSE(ValidarDocumento(&Outro, &Controle, caso.Errado, tipo)) << "the verdict without a report";
        EXPECT_FALSE(ValidarDocumento(nullptr, nullptr, u" \t", tipo)) << "blank";
        EXPECT_EQ(conferir(u""), "nada") << "blank is not reported";
    }
}

TEST_F(Frame, Campos) {
    const auto numerico = [](const TObjeto* ASender, TWinControl* AControle, std::u16string_view AValor,
                             std::u16string_view AMensagem) {
        ValidarCampoNumerico(ASender, AControle, AValor, AMensagem, 5, 2);
    };
    const auto ie = [](const TObjeto* ASender, TWinControl* AControle, std::u16string_view AValor,
                       std::u16string_view AMensagem) { ValidarIE(ASender, AControle, AValor, u"RS", AMensagem); };
    const char* const codigo = "Código inválido. Verifique.";
    const TCasoDeRegra casos[] = {
        {ValidarString, u"x", "nada"},
        {ValidarString, u" \r\n", "Falhou."},
        {ValidarCodigoCadastral, u"10", "nada"},
        {ValidarCodigoCadastral, u"0", codigo},
        {ValidarCodigoCadastral, u"+", codigo},
        {ValidarCodigoCadastral, u",", codigo},
        {ValidarCodigoCadastral, u"10-1", codigo},
        {ValidarCodigoCadastral, u" 0", "nada"},
        {numerico, u"123,45", "nada"},
        {numerico, u"1234,5", "Falhou."},
        {numerico, u"12,345", "Falhou."},
        {numerico, u"", "Falhou."},
        {numerico, u"abc.-", "Falhou."},
        {numerico, u"R$ 1.23,4", "nada"},
        {numerico, u",12", "nada"},      // a comma in first place: three places before no fraction
        {numerico, u",1,5", "Falhou."},  // nor does the second comma start one
        {numerico, u"1,,", "nada"},      // a second comma is a place of the fraction
        {numerico, u"1,,,,", "Falhou."},
        {ValidarCampoSomenteNumeros, u"12345", "Falhou."},
        {ValidarCampoSomenteNumeros, u"12a", "nada"},
        {ValidarCampoSomenteCaracteresEspeciais, u"?!", "Falhou."},
        {ValidarCampoSomenteCaracteresEspeciais, u"?a", "nada"},
        {ie, u"2243658792", "nada"},
        {ie, u"2243658793", "Falhou."},
        {ie, u"", "Falhou."},
    };
    Conferir(casos);
}

TEST(MetodosRetorno, ParamNoResultadoPedido) {
    struct TCaso {
        std::vector<bool> Resultados;
        TTipoValidacaoResultadoMetodoRetorno Tipo;
        bool Esperado;
        int Chamados;
    };
    const TCaso casos[] = {
        {{}, tvrPrimeiroResultadoFalso, false, 0},
        {{}, tvrPrimeiroResultadoVerdadeiro, false, 0},
        {{true, true}, tvrPrimeiroResultadoFalso, true, 2},
        {{true, false, true}, tvrPrimeiroResultadoFalso, false, 2},
        {{false, false}, tvrPrimeiroResultadoVerdadeiro, false, 2},
        {{false, true, false}, tvrPrimeiroResultadoVerdadeiro, true, 2},
    };
    for (const TCaso& caso : casos) {
        int chamados = 0;
        const auto dono = std::make_shared<int>(0);
        std::vector<TValidacaoMetodoRetorno> metodos;
        for (const bool resultado : caso.Resultados)
            metodos.emplace_back([&chamados, dono, resultado, total = caso.Resultados.size()] {
                EXPECT_EQ(dono.use_count(), 1 + static_cast<long>(total) - chamados) << "let go after each call";
                ++chamados;
                return resultado;
            });
        EXPECT_EQ(TOryUtilsValidacoes::ValidouMetodosRetorno(std::move(metodos), caso.Tipo), caso.Esperado);
        EXPECT_EQ(chamados, caso.Chamados);
        EXPECT_EQ(dono.use_count(), 1);
    }
    EXPECT_THROW(TOryUtilsValidacoes::ValidouMetodosRetorno({nullptr}, tvrPrimeiroResultadoFalso), Exception);
}

TEST(Iif, EscolheOValor) {
    EXPECT_EQ(Iif(true, 1, u"não").GetValor(), Variant(1).GetValor());
    EXPECT_EQ(Iif(false, 1, u"não").GetValor(), Variant(u"não").GetValor());
}

}  // namespace
}  // namespace OryUtils
