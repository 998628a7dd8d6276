#include "oryutils/characters/Utf.hpp"

#include "Caixas.hpp"
#include "Campos.hpp"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <memory>
#include <random>
#include <vector>

namespace OryUtils {
namespace {

class TSorteio {
public:
    explicit TSorteio(unsigned ASemente) : FGerador(ASemente) {}
    std::size_t Ate(std::size_t AQuantos) { return FGerador() % AQuantos; }
    template <typename T>
    const auto& De(const T& ALista) {
        return ALista[Ate(std::size(ALista))];
    }

private:
    std::mt19937 FGerador;
};

// Values that a mask or a format made, and values that none could have made.
const std::u16string CTextos[] = {u"52998224725",
                                  u"529.982.247-25",
                                  u"11222333000181",
                                  u"11.222.333/0001-81",
                                  u"12ABC34501DE35",
                                  u"01310100",
                                  u"EC1A 1BB",
                                  u"013",
                                  u"11 3333-4444",
                                  u"0800 123 4567",
                                  u"+55 11 93333-4444",
                                  u"( 11)98765-4321",
                                  u"1S",
                                  u"5 9",
                                  u"1sp123456o5",
                                  u"032024",
                                  u"  ",
                                  u" a ",
                                  u"ação",
                                  u"\u00A0",
                                  u"52998224725999",
                                  u"x_y",
                                  u"\xD83D\xDE00",
                                  u"e\u0301"};

Variant SortearValor(TSorteio& ASorteio, const TField& ACampo) {
    if (ASorteio.Ate(10) == 0) return TNulo{};
    if (EhCampoDeData(ACampo.GetTipo())) {
        const double dias[] = {45360.5883217592, 45360.99999999, 0.25, 1.0 / 86400000, -3.75, 2958465.5};
        return TDateTime(ASorteio.De(dias));
    }
    if (!EhCampoNumerico(ACampo.GetTipo())) {
        if (ASorteio.Ate(2)) return ASorteio.De(CTextos);
        constexpr std::u16string_view CAlfabeto = u"0123456789 aZç.-/()_+,";
        std::u16string texto;
        for (std::size_t n = ASorteio.Ate(20); n > 0; --n) texto += ASorteio.De(CAlfabeto);
        return texto;
    }
    if (ACampo.GetTipo() == ftLargeint && ASorteio.Ate(3) == 0) return std::numeric_limits<std::int64_t>::max();
    if (EhCampoInteiro(ACampo.GetTipo())) return static_cast<std::int64_t>(ASorteio.Ate(32768));
    const Extended numeros[] = {10.5074L, 0.0049L, 1.6525L, 2.5L, -0.005L, 1e-30L, 1e25L, 0.1L + 0.2L, 1.0L / 3};
    return ASorteio.De(numeros);
}

std::string Retratar(const TField& ACampo) {
    return ParaUtf8(VarianteParaTexto(ACampo.GetValor())) + " (" +
           std::to_string(ACampo.GetValor().GetValor().index()) + ")";
}

}  // namespace

void PassearSemDigitar(TCaixas& ACaixas, int AFormularios) {
    const auto semente = std::random_device{}();
    SCOPED_TRACE(semente);
    TSorteio sorteio(semente);
    for (int i = 0; i < AFormularios; ++i) {
        std::array<std::unique_ptr<TField>, TCaixas::CQuantas> campos;
        std::array<Variant, TCaixas::CQuantas> valores;
        std::array<const char*, TCaixas::CQuantas> nomes{};
        std::array<TEditorDeCampo*, TCaixas::CQuantas> editores{};
        for (std::size_t k = 0; k < campos.size(); ++k) {
            const TFeitioDeCampo& feitio = sorteio.De(CFeitios);
            nomes[k] = feitio.Nome;
            campos[k] = feitio.Criar();
            campos[k]->SetValor(SortearValor(sorteio, *campos[k]));
            valores[k] = campos[k]->GetValor();
            editores[k] = &ACaixas.Ligar(k, *campos[k]);
        }
        constexpr TTeclaMascara CSemTexto[] = {tmEsquerda, tmDireita, tmInicio, tmFim};
        std::vector<std::size_t> passos;
        for (std::size_t passo = 0; passo < 8; ++passo) {
            const std::size_t para = passo < campos.size() ? passo : sorteio.Ate(campos.size());
            ACaixas.Entrar(para);
            if (sorteio.Ate(3) == 0) ACaixas.Teclar(sorteio.De(CSemTexto));
            if (sorteio.Ate(6) == 0) ACaixas.IrEVoltar();
            if (sorteio.Ate(4) == 0) ACaixas.TeclarDesfazer();
            if (sorteio.Ate(3) == 0) editores[sorteio.Ate(editores.size())]->Gravar();
            if (sorteio.Ate(4) == 0) ACaixas.Deixar();
        }
        ACaixas.Deixar();
        for (std::size_t k = 0; k < campos.size(); ++k) {
            ASSERT_EQ(campos[k]->GetValor(), valores[k])
                << nomes[k] << ": " << ParaUtf8(VarianteParaTexto(valores[k])) << " is now " << Retratar(*campos[k]);
            ASSERT_EQ(editores[k]->GetErro(), u"") << nomes[k];
        }
        ACaixas.Desligar();
    }
}

namespace {

/// What a number of AFeitio ends as, told by its digits alone.
std::u16string LerDevagar(const TFeitioDeCampo& AFeitio, const std::u16string& ADigitos) {
    if (AFeitio.Formatar != FormatarFone) return ADigitos;
    std::u16string doze = std::u16string(12 - ADigitos.size(), u' ') + ADigitos;
    return u"(" + doze.substr(0, 3) + u")" + doze.substr(3, 5) + u"-" + doze.substr(8);
}

struct TNumeroDeTamanho {
    const TFeitioDeCampo& Feitio;
    std::size_t Digitos;
    std::u16string_view Desenho;  // a "9" for each digit
};
constexpr TNumeroDeTamanho CNumeros[] = {
    {CCpf, 11, u"999.999.999-99"},
    {CCnpj, 14, u"99.999.999/9999-99"},
    {CCpfCnpj, 11, u"999.999.999-99"},
    {CCpfCnpj, 14, u"99.999.999/9999-99"},
    {CCep, 8, u"99999-999"},
    {CNcm, 8, u"9999.99.99"},
    {CFone, 11, u"(99) 99999-9999"},
    {CFone, 10, u"(99) 9999-9999"},
    {CFoneDDD, 11, u"(99) 99999-9999"},
    {CFoneDDD, 10, u"(99) 9999-9999"},
};

/// The digits with the marks of the drawing, with blanks, with anything that people put between them, or with nothing.
std::u16string Grafar(TSorteio& ASorteio, const TNumeroDeTamanho& ANumero, const std::u16string& ADigitos) {
    const std::size_t modo = ASorteio.Ate(4);
    std::u16string grafia;
    std::size_t usados = 0;
    for (const char16_t c : ANumero.Desenho) {
        if (c == u'9') {
            grafia += ADigitos[usados++];
            if (modo == 3 && ASorteio.Ate(4) == 0) grafia += ASorteio.De(std::u16string_view(u" .-"));
        } else if (modo == 1) {
            grafia += c;
        } else if (modo == 2) {
            grafia += u' ';
        }
    }
    return ASorteio.Ate(5) == 0 ? u" " + grafia + u"\t" : grafia;
}

/// Hundredths with that decimal mark, thousands parted by the other one or not at all.
std::u16string GrafarValor(std::size_t ACentavos, char16_t ADecimal, bool ASeparaMilhares) {
    std::u16string inteiro = InteiroParaTexto(static_cast<std::int64_t>(ACentavos / 100));
    for (std::size_t i = inteiro.size(); ASeparaMilhares && i > 3; i -= 3)
        inteiro.insert(i - 3, 1, ADecimal == u',' ? u'.' : u',');
    const std::u16string centavos = InteiroParaTexto(static_cast<std::int64_t>(ACentavos % 100 + 100));
    return inteiro + ADecimal + centavos.substr(1);
}

}  // namespace

void CompararGrafias(TCaixas& ACaixas, int ANumeros) {
    const auto semente = std::random_device{}();
    SCOPED_TRACE(semente);
    TSorteio sorteio(semente);
    for (int i = 0; i < ANumeros; ++i) {
        const TNumeroDeTamanho& numero = sorteio.De(CNumeros);
        std::u16string digitos;
        while (digitos.size() < numero.Digitos) digitos += static_cast<char16_t>(u'1' + sorteio.Ate(9));
        const std::u16string grafia = Grafar(sorteio, numero, digitos);
        const std::u16string esperado = LerDevagar(numero.Feitio, digitos);
        std::u16string exibido;
        for (const bool colado : {false, true}) {
            const auto campo = numero.Feitio.Criar();
            ACaixas.Ligar(0, *campo);
            ACaixas.Entrar(0);
            if (colado)
                ACaixas.Colar(grafia);
            else
                ACaixas.Digitar(grafia.substr(0, grafia.find(u'\t')));
            ACaixas.Deixar();
            ASSERT_EQ(ParaUtf8(campo->GetTexto()), ParaUtf8(esperado))
                << numero.Feitio.Nome << (colado ? ", pasted: " : ", typed: ") << ParaUtf8(grafia);
            exibido = ACaixas.Texto(0);
            ACaixas.Desligar();
        }
        const auto campo = numero.Feitio.Criar();
        campo->SetValor(digitos);
        EXPECT_EQ(ParaUtf8(campo->GetTextoExibido()), ParaUtf8(exibido)) << numero.Feitio.Nome << ", loaded";

        const std::size_t centavos = sorteio.Ate(sorteio.Ate(2) ? 100000 : 1000000000);
        const std::u16string valor = GrafarValor(centavos, sorteio.De(std::u16string_view(u".,")), sorteio.Ate(2) == 0);
        TNumericField campoValor(ftFloat);
        FormatarCampoValor(campoValor);
        ACaixas.Ligar(0, campoValor);
        ACaixas.Entrar(0);
        sorteio.Ate(2) ? ACaixas.Colar(valor) : ACaixas.Digitar(valor);
        ACaixas.Deixar();
        ASSERT_EQ(campoValor.GetTexto(), GrafarValor(centavos, u',', false)) << ParaUtf8(valor);
        ACaixas.Desligar();
    }
}

}  // namespace OryUtils
