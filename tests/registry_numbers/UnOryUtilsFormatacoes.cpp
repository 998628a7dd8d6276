#include "oryutils/registry_numbers/UnOryUtilsFormatacoes.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/fields/ControladorFormatos.hpp"
#include "oryutils/fields/Mascara.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/FormatoDataHora.hpp"

#include <gtest/gtest.h>

#include <string>

namespace OryUtils {
namespace {

class Formatacoes : public testing::Test {
protected:
    void SetUp() override { GOryUtilsFormatacoes.Criar(); }
    void TearDown() override {
        GOryUtilsFormatacoes.Liberar();
        InstalarControladorFormatos(nullptr);
    }

private:
    TFormatosTemporarios FFormatos{TFormatSettings{}};
};

TEST_F(Formatacoes, ConfigurarDefineOsFormatosDoProcesso) {
    const TDateTime data = CodificarData(2024, 3, 9);
    EXPECT_NE(FormatarDataHora(u"ddddd", data), u"09/03/2024");
    TFormatSettings deAntes;
    deAntes.TimeAMString = u"a.m.";
    deAntes.TimePMString = u"p.m.";
    deAntes.TwoDigitYearCenturyWindow = 80;
    DefinirFormatSettings(deAntes);
    GOryUtilsFormatacoes->GetFormatoPadraoDatasEValores().Configurar();
    EXPECT_EQ(FormatSettings().TimeAMString + FormatSettings().TimePMString, u"a.m.p.m.") << "it says nothing of these";
    EXPECT_EQ(FormatSettings().TwoDigitYearCenturyWindow, 80);
    EXPECT_EQ(FormatarDataHora(u"ddddd", data), u"09/03/2024");
    EXPECT_EQ(FormatarDataHora(u"dddddd", data), u"09  de MARCO de 2024");
    EXPECT_FALSE(EstahConfigurandoFormatos()) << "only while it runs";
}

TEST_F(Formatacoes, MascarasDosCampos) {
    struct TCaso {
        void (*Formatar)(TField&);
        std::u16string_view Mascara, Valor, Exibicao;
    };
    const TCaso casos[] = {
        {FormatarCNPJ, u"99.999.999/9999-99;0; ", u"11222333000181", u"11.222.333/0001-81"},
        {FormatarCnpjAlfanumericoCampo, u">aa.aaa.aaa/aaaa-99;0; ", u"12ABC34501DE35", u"12.ABC.345/01DE-35"},
        {FormatarCPF, u"999.999.999-99;0; ", u"52998224725", u"529.982.247-25"},
        {FormatarCEI, u"99.999.99999/99;0; ", u"115830024985", u"11.583.00249/85"},
        {FormatarCEP, u"99999-999;0; ", u"01310100", u"01310-100"},
        {FormatarCompetencia, u"99/9999;0; ", u"032024", u"03/2024"},
        {FormatarCRC, u"9>LL<999999>L<9;0; ", u"1SP123456O5", u"1SP123456O5"},
        {FormatarFone, u"!(999)99999-9999;1; ", u"(011)91234-5678", u"(011)91234-5678"},
        {FormatarNCM, u"9999.999.99;0; ", u"847130012", u"8471.300.12"},
        {FormatarFoneDDD, u"", u"11933334444", u"(11)93333-4444"},
        {FormatarFoneDDD, u"", u"1133334444", u"(11)3333-4444"},
        {FormatarFoneDDD, u"", u"08001234567", u"0800 123 4567"},
        {FormatarCpfCnpj, u"", u"52998224725", u"529.982.247-25"},
        {FormatarCpfCnpj, u"", u"12ABC34501DE35", u"12.ABC.345/01DE-35"},
    };
    GOryUtilsFormatacoes->GetFormatoPadraoDatasEValores().Configurar();
    for (const TCaso& caso : casos) {
        TField campo(ftString);
        caso.Formatar(campo);
        EXPECT_EQ(campo.GetEditMask(), caso.Mascara);
        campo.SetValor(caso.Valor);
        EXPECT_EQ(ParaUtf8(campo.GetTextoExibido()), ParaUtf8(caso.Exibicao));
        // What is shown, typed again, is the value.
        const TMascara mascara = campo.GetMascaraDoTexto(caso.Valor);
        EXPECT_EQ(mascara.ParaValor(caso.Exibicao), caso.Valor);
        EXPECT_TRUE(mascara.Aceita(caso.Exibicao));
    }
    EXPECT_EQ(TMascara(u">aa.aaa.aaa/aaaa-99;0; ").ParaEdicao(u"12abc34501de35"), u"12.ABC.345/01DE-35");
}

TEST_F(Formatacoes, NumerosDosCampos) {
    struct TCaso {
        void (*Formatar)(TField&);
        std::u16string_view Exibicao, Edicao;
    };
    const TCaso casos[] = {
        {FormatarCampoValor, u"1.234,50", u"1234,50"},
        {FormatarCampoPercentual, u"1.234,50 %", u"1234,50"},
        {FormatarCampoInteiro, u"1235", u"1235"},
    };
    GOryUtilsFormatacoes->GetFormatoPadraoDatasEValores().Configurar();
    for (const TCaso& caso : casos) {
        TNumericField numero(ftFloat);
        numero.SetValor(1234.5);
        caso.Formatar(numero);
        EXPECT_EQ(numero.GetTextoExibido(), caso.Exibicao);
        EXPECT_EQ(numero.GetTexto(), caso.Edicao);
        TField texto(ftString);
        EXPECT_THROW(caso.Formatar(texto), EInvalidCast);
    }
}

struct TControladorGravador : TControladorFormatos {
    std::string Chamadas;
    void BeginUpdate() override { Chamadas += "BeginUpdate ", TControladorFormatos::BeginUpdate(); }
    void EndUpdate() override { Chamadas += "EndUpdate ", TControladorFormatos::EndUpdate(); }
    void SetUsarFormatosDoProcesso(bool AUsar) override {
        Chamadas += AUsar ? "sim " : "não ";
        TControladorFormatos::SetUsarFormatosDoProcesso(AUsar);
    }
    void GetFormats() override { Chamadas += "GetFormats ", TControladorFormatos::GetFormats(); }
    void NotifyListeners() override { Chamadas += "NotifyListeners ", TControladorFormatos::NotifyListeners(); }
    void Avisar() { (Chamadas += "aviso com ") += static_cast<char>(GetFormatos().DecimalSeparator); }
};

struct TOuvinteRemovido {
    void Avisar() { ADD_FAILURE() << "a removed listener is told"; }
};

TEST_F(Formatacoes, ControladorDeFormatosNaOrdem) {
    TControladorGravador controlador;
    InstalarControladorFormatos(&controlador);
    auto& padrao = GOryUtilsFormatacoes->GetFormatoPadraoDatasEValores();
    EXPECT_TRUE(padrao.GetUsarNosControlesDevExpress());
    TOuvinteRemovido removido;
    controlador.AdicionarOuvinte(TEvento<>::De<&TControladorGravador::Avisar>(controlador));
    controlador.AdicionarOuvinte(TEvento<>::De<&TOuvinteRemovido::Avisar>(removido));
    controlador.RemoverOuvinte(TEvento<>::De<&TOuvinteRemovido::Avisar>(removido));
    padrao.Configurar();
    EXPECT_EQ(controlador.Chamadas, "") << "true at first; neither that nor Configurar tells anybody";
    padrao.SetUsarNosControlesDevExpress(true);
    EXPECT_EQ(controlador.Chamadas, "BeginUpdate sim EndUpdate GetFormats NotifyListeners aviso com ,");
    padrao.SetUsarNosControlesDevExpress(false);
    EXPECT_FALSE(padrao.GetUsarNosControlesDevExpress());
    EXPECT_NE(controlador.Chamadas.find("não"), std::string::npos);

    controlador.BeginUpdate();
    controlador.Chamadas.clear();
    controlador.NotifyListeners();
    EXPECT_EQ(controlador.Chamadas, "NotifyListeners ") << "nobody is notified during an update";
    controlador.EndUpdate();
}

}  // namespace
}  // namespace OryUtils
