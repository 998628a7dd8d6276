// What a text must be, told by a table: what is answered, or the sentence that refuses it.
#include "oryutils/characters/Utf.hpp"
#include "oryutils/fields/Mascara.hpp"
#include "oryutils/registry_numbers/UnOryUtilsFormatacoes.hpp"

#include "ui/ToolkitRoteirizado.hpp"

namespace OryUtils {
namespace {

class Pedidos : public TesteDialogos {
public:
    Pedidos() { GOryUtilsFormatacoes.Criar(); }
    ~Pedidos() override { GOryUtilsFormatacoes.Liberar(); }

protected:
    /// Writes ATexto into the box and presses OK: "=answer", the sentence of the warning, or nothing when it stays.
    std::string Responder(const TOryUtilsDialogsPedidoTextoIOP& AParametros, std::u16string_view AProposto,
                          const std::u16string* ATexto) {
        std::u16string valor(AProposto), aviso;
        Toolkit.Roteiro = {[&](TFormulario& AFormulario) {
                               auto& caixa = dynamic_cast<TCaixaEdicao&>(*AFormulario.BuscarControle(u"Valor"));
                               if (ATexto) caixa.AceitarTexto(*ATexto);
                               Confirmar(AFormulario);
                           },
                           [&](TFormulario& AAviso) {
                               EXPECT_EQ(AAviso.GetTitulo(), u"Aviso");
                               aviso = BuscarTexto(AAviso, u"Message");
                           }};
        const bool confirmou = Dialogos.PedirTexto(AParametros, valor);
        EXPECT_NE(confirmou, !aviso.empty());
        EXPECT_TRUE(confirmou || valor == AProposto) << "unchanged";
        return confirmou ? "=" + ParaUtf8(valor) : ParaUtf8(aviso);
    }

    // The toolkits swallow EAbort.
    static void Confirmar(TFormulario& AFormulario) {
        try {
            Teclar(AFormulario, 13);
        } catch (const EAbort&) {
        }
    }
};

TEST_F(Pedidos, CadaTipoAceitaERecusa) {
    const struct {
        TTipoTexto Tipo;
        const char16_t* Texto;
        const char* Resposta;
    } casos[] = {
        {ttLivre, u" a ", "= a "},
        {ttInteiro, u"1.234", "=1234"},
        {ttInteiro, u"-7", "=-7"},
        {ttInteiro, u"7,5", "Número inteiro inválido. Verifique."},
        {ttInteiro, u"99999999999999999999", "Número inteiro inválido. Verifique."},
        {ttNumero, u"1.234,56", "=1234,56"},
        {ttNumero, u"R$ 1,234.56", "=1234,56"},
        {ttNumero, u"0,10", "=0,1"},
        {ttNumero, u"1,2,3.4.5", "Número inválido. Verifique."},
        {ttNumero, u"doze", "Número inválido. Verifique."},
        {ttData, u"5/3/2024", "=05/03/2024"},
        {ttData, u"05032024", "=05/03/2024"},
        {ttData, u"29/02/2023", "Data inválida. Verifique."},
        {ttData, u"12/__/____", "Data inválida. Verifique."},
        {ttHora, u"7:05", "=07:05:00"},
        {ttHora, u"24:00", "Hora inválida. Verifique."},
        {ttDataHora, u"31/12/2024 23:59", "=31/12/2024 23:59:00"},
        {ttCPF, u"529.982.247-25", "=52998224725"},
        {ttCPF, u"52998224725", "=52998224725"},
        {ttCPF, u"529.982.247-26", "CPF inválido. Verifique."},
        {ttCPF, u"529.982", "CPF inválido. Verifique."},
        {ttCPF, u"52998224725x", "CPF inválido. Verifique."},
        {ttCNPJ, u"11.222.333/0001-81", "=11222333000181"},
        {ttCNPJ, u"12abc34501de35", "=12ABC34501DE35"},
        {ttCNPJ, u"11.222.333/0001-82", "CNPJ inválido. Verifique."},
        {ttCpfCnpj, u"52998224725", "=52998224725"},
        {ttCpfCnpj, u"11222333000181", "=11222333000181"},
        {ttCpfCnpj, u"5299822472", "CPF ou CNPJ inválido. Verifique."},
        {ttCEP, u"01310-100", "=01310100"},
        {ttCEP, u"01310", "CEP inválido. Verifique."},
        {ttFone, u"(11) 93333-4444", "=11933334444"},
        {ttFone, u"3333", "Telefone inválido. Verifique."},
        {ttPIS, u"120.12345.67-", "PIS inválido. Verifique."},
        {ttCEI, u"000000000000", "=000000000000"},
        {ttCNH, u"1", "CNH inválida. Verifique."},
        {ttEmail, u" a.b@cd.ef ", "=a.b@cd.ef"},
        {ttEmail, u"a.b@", "E-mail inválido. Verifique."},
    };
    for (const auto& c : casos) {
        const std::u16string texto = c.Texto;
        TOryUtilsDialogsPedidoTextoIOP parametros{.Tipo = c.Tipo};
        EXPECT_EQ(Responder(parametros, u"", &texto), c.Resposta) << c.Tipo << ' ' << ParaUtf8(texto);
        // What was answered is a proposal that is answered again, shown in its mask.
        const std::string resposta = c.Resposta;
        if (resposta[0] == '=') {
            EXPECT_EQ(Responder(parametros, DeUtf8(resposta.substr(1)), nullptr), resposta) << c.Tipo;
        }
        const std::u16string vazio;
        EXPECT_EQ(Responder(parametros, u"", &vazio), "=") << "blank passes where nothing is required";
        parametros.Obrigatorio = true;
        EXPECT_EQ(Responder(parametros, u"", &vazio), "Preenchimento obrigatório. Verifique.") << c.Tipo;
    }
}

TEST_F(Pedidos, MascaraEConferenciaDeQuemChama) {
    const std::u16string placa = u"abc1d23", curta = u"ab", outra = u"xyz9x99";
    TOryUtilsDialogsPedidoTextoIOP parametros{.Mascara = u">LLL0A00;0;_", .Obrigatorio = true};
    EXPECT_EQ(Responder(parametros, u"", &placa), "=ABC1D23");
    EXPECT_EQ(Responder(parametros, u"", &curta), "Preenchimento incompleto. Verifique.");
    struct TConferencia {
        void Conferir(const std::u16string& AValor, std::u16string& ARecusa) {
            if (AValor == u"XYZ9X99") ARecusa = u"Placa já cadastrada.";
        }
    } conferencia;
    parametros.OnConferir = TEvento<const std::u16string&, std::u16string&>::De<&TConferencia::Conferir>(conferencia);
    EXPECT_EQ(Responder(parametros, u"", &outra), "Placa já cadastrada.");
    EXPECT_EQ(Responder(parametros, u"", &placa), "=ABC1D23");
    std::u16string valor;
    EXPECT_THROW(Dialogos.PedirTexto({.Mascara = u"---"}, valor), EConvertError);
}

TEST_F(Pedidos, AcumuladasAsNotificacoesARecusaAindaAparece) {
    const TAcumuloNotificacoes acumulo(Dialogos.GetCentralNotificacoes());
    const std::u16string errado = u"1";
    EXPECT_EQ(Responder({.Tipo = ttCPF}, u"", &errado), "CPF inválido. Verifique.");
    EXPECT_TRUE(Dialogos.GetCentralNotificacoes().GetMensagens().empty());
}

}  // namespace
}  // namespace OryUtils
