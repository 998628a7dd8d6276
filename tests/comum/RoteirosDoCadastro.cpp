// The sample window itself: typed into, left, saved.
#include "comum/UsuarioDoCadastro.hpp"

#include <cctype>

namespace OryUtils::Cadastro {
namespace {

class RoteiroDoCadastro : public Roteiro {
protected:
    void SetUp() override {
        Roteiro::SetUp();
        if (IsSkipped()) return;
        u = CriarUsuarioDoCadastro();
    }
    void Escrever(const char* ATexto) { u->Teclado().Escrever(ATexto); }
    void Teclar(std::uint16_t ATecla) { u->Teclado().Teclar(ATecla); }
    /// Looks at the warning that is up, and closes it.
    void Responder(const char* AAviso) {
        EXPECT_EQ(u->LerAviso(), AAviso);
        Teclar(CEnter);
    }

    TFormatosTemporarios FFormatos{BuscarFormatosBrasileiros()};
    std::unique_ptr<TUsuarioDoCadastro> u;
};

struct TCasoDeCampo {
    TCampo Campo;
    const char* Digitado;
    const char* NaCaixa;
    const char* Depois;           // left
    const char* Aviso = nullptr;  // none: it is good
};
constexpr const char* CDataRuim = "Data de nascimento inválida: use dia/mês/ano, como 31/12/1999.";
constexpr TCasoDeCampo CCasosDeCampo[] = {
    {caNome, "", "", "", "Informe o nome do cliente."},
    {caDocumento, "11222333000181", "11.222.333/0001-81", "11.222.333/0001-81"},
    {caDocumento, "529 982 247 25", "529.982.247-25", "529.982.247-25"},
    {caDocumento, "12abc34501de35", "12.ABC.345/01DE-35", "12.ABC.345/01DE-35"},
    {caDocumento, "11222333000182", "11.222.333/0001-82", "11.222.333/0001-82", "CNPJ inválido. Verifique."},
    {caDocumento, "12ABC34501DE36", "12.ABC.345/01DE-36", "12.ABC.345/01DE-36", "CNPJ inválido. Verifique."},
    {caDocumento, "52998224726", "529.982.247-26", "529.982.247-26", "CPF inválido. Verifique."},
    {caDocumento, "529982", "529.982.   -  ", "529.982.   -  ", "CPF inválido. Verifique."},
    {caCEP, "01310x100", "01310-100", "01310-100"},
    {caCEP, "0131010", "01310-10 ", "01310-10 ", "CEP inválido: são oito dígitos."},
    {caFone, "(11) 98765-4321", "(11)98765-4321", "(11)98765-4321"},
    {caFone, "0800 123 4567", "0800 123 4567", "0800 123 4567"},
    {caFone, "98765432", "(98)7654-32  ", "(98)7654-32  ", "Telefone inválido: informe o DDD e o número."},
    {caMunicipio, "35a50308", "3550308", "3550308"},
    {caMunicipio, "3550309", "3550309", "3550309", "Código do município inválido. Verifique."},
    {caValor, "1.234,5x6", "1.234,56", "1.234,56"},
    {caValor, "-", "-", "-", "Valor inválido. Verifique."},
    {caNascimento, "31121999", "31/12/1999", "31/12/1999"},
    {caNascimento, "30021999", "30/02/1999", "30/02/1999", CDataRuim},
    {caNascimento, "3002", "30/02/____", "30/02/____", CDataRuim},
};
constexpr const char* CValorPorExtenso = "UM MIL E DUZENTOS E TRINTA E QUATRO REAIS E CINQUENTA E SEIS CENTAVOS";

TEST_F(RoteiroDoCadastro, AsCaixasSeguemAsMascarasESairConfere) {
    for (const TCasoDeCampo& c : CCasosDeCampo) {
        SCOPED_TRACE(c.Digitado);
        TPassos passos;
        passos.push_back([&] {
            u->Preencher(c.Campo, "");
            u->Focar(c.Campo);
        });
        passos.push_back([&] { Escrever(c.Digitado); });
        passos.push_back([&] {
            EXPECT_EQ(u->Ler(c.Campo), c.NaCaixa);
            EXPECT_EQ(u->LerPorExtenso(), c.Depois == std::string("1.234,56") ? CValorPorExtenso : "");
            Teclar(CTab);
        });
        if (c.Aviso) passos.push_back([&] { Responder(c.Aviso); });
        passos.push_back([&] {
            EXPECT_EQ(u->LerAviso(), "") << "one warning, not a chain of them";
            EXPECT_EQ(u->EstahFocado(c.Campo), c.Aviso != nullptr);
            EXPECT_EQ(u->Ler(c.Campo), c.Depois);
        });
        u->Conduzir(std::move(passos));
    }
}

// The rule of the registration depends on the state: one may leave a bad number for the choice of it, and back.
TEST_F(RoteiroDoCadastro, AUfPodeSerEscolhidaDepoisDaInscricao) {
    u->Conduzir({[&] {
                     u->Exemplificar();
                     u->Preencher(caIE, "");
                     u->Focar(caIE);
                 },
                 [&] { Escrever("123"); }, [&] { u->Focar(caUF); },
                 [&] {
                     EXPECT_EQ(u->LerAviso(), "");
                     EXPECT_TRUE(u->EstahFocado(caUF));
                     u->Focar(caIE);
                 },
                 [&] { Teclar(CTab); }, [&] { Responder("Inscrição estadual inválida para a UF. Verifique."); }});
}

TEST_F(RoteiroDoCadastro, AltELetraVaiAoCampoDaLetra) {
    TPassos passos{[&] { u->Exemplificar(); }};
    for (std::size_t i = 0; i < CCampos.size(); ++i) {
        const std::size_t marca = CCampos[i].Caption.find(u'&');
        if (marca == std::u16string_view::npos) continue;
        passos.push_back([&] { u->Focar(caCEP); });
        passos.push_back(
            [=, this] { u->Teclado().TeclarComAlt(static_cast<char>(std::toupper(CCampos[i].Caption[marca + 1]))); });
        passos.push_back([=, this] { EXPECT_TRUE(u->EstahFocado(static_cast<TCampo>(i))) << i; });
    }
    u->Conduzir(std::move(passos));
}

TEST_F(RoteiroDoCadastro, SalvarConfereTudo) {
    u->Conduzir({[&] {
                     u->Exemplificar();
                     u->Focar(caDocumento);
                 },
                 [&] {
                     u->Preencher(caNome, " ");
                     u->Salvar();
                 },
                 [&] { Responder("Informe o nome do cliente."); },
                 [&] {
                     EXPECT_TRUE(u->EstahFocado(caNome));
                     u->Preencher(caNome, "Comercial Modelo");
                     u->Focar(caDocumento);
                     Escrever("11222333000182");
                 },
                 [&] { u->Salvar(); }, [&] { Responder("CNPJ inválido. Verifique."); },
                 [&] { u->Preencher(caDocumento, ""); }, [&] { Escrever("11222333000181"); }, [&] { u->Salvar(); },
                 [&] { Responder("Cliente conferido: todos os campos são válidos."); }});
}

}  // namespace
}  // namespace OryUtils::Cadastro
