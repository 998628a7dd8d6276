#include "oryutils/characters/Caixa.hpp"
#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/characters/Utf.hpp"
#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/registry_numbers/interno/CpfCnpj.hpp"
#include "oryutils/registry_numbers/interno/OutrosDocumentos.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Formatos.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

#include "comum/Acaso.hpp"
#include "comum/Casos.hpp"
#include "comum/MensagemDe.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

using namespace OryTypes;
using namespace Interno;

std::u16string Digitos(std::int64_t AValor, int ADigitos) {
    return FormatarZeros(static_cast<Extended>(AValor), ADigitos);
}

// The rule as it is told: drop what is dropped, count, compute one digit after the other.
bool Lento(std::u16string_view ATexto, bool ALetras, std::size_t ATamanho) {
    std::vector<int> valores;
    for (char16_t c : ATexto) {
        const bool letra = EhLetra(c);
        if (letra) c = MaiusculaDe(c);
        if (EhDigito(c) || (ALetras && letra && valores.size() < 12))
            valores.push_back(c - u'0');
        else if (ALetras && !EhBranco(c) && std::u16string_view(u"./-").find(c) == std::u16string_view::npos)
            return false;
    }
    if (valores.size() != ATamanho) return false;
    const auto digito = [&](std::size_t AQuantos) {
        int soma = 0;
        for (std::size_t i = AQuantos, peso = 2; i-- > 0; ++peso)
            soma += valores[i] * static_cast<int>(ATamanho == 14 && peso > 9 ? peso - 8 : peso);
        const int c = 11 - soma % 11;
        return c > 9 ? 0 : c;
    };
    return digito(ATamanho - 2) == valores[ATamanho - 2] && digito(ATamanho - 1) == valores[ATamanho - 1];
}

// The usual forms, changed forms and noise, over UTF-16 and over bytes.
TEST(CpfCnpj, IgualALeituraLenta) {
    Testes::TAcaso gerador;
    static constexpr std::string_view CFormas[] = {"000.000.000-00", "00000000000", "00.000.000/0000-00",
                                                   "00000000000000", "AA.AAA.AAA/AAAA-00"};
    int validos = 0;
    for (int i = 0; i < 100000; ++i) {
        const std::string_view forma = CFormas[i % 5];
        const bool cpf = i % 5 < 2;
        const bool letras = i % 5 == 4;
        const std::size_t tamanho = cpf ? 11 : 14;
        std::u16string texto;
        for (const char lugar : forma)
            texto += lugar == '0'   ? static_cast<char16_t>(u'0' + gerador() % 10)
                     : lugar == 'A' ? u"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcz"[gerador() % 40]
                                    : static_cast<char16_t>(lugar);
        for (int valor = 0; valor < 100 && i % 3 == 0 && !Lento(texto, letras, tamanho); ++valor) {
            texto[texto.size() - 1] = static_cast<char16_t>(u'0' + valor % 10);
            texto[texto.size() - 2] = static_cast<char16_t>(u'0' + valor / 10);
        }
        for (auto mudancas = gerador() % 3; mudancas > 0; --mudancas) {
            const auto lugar = gerador() % texto.size();
            const char16_t novo = u"0123456789.-/ /:aé\xD800\xFF10"[gerador() % 20];
            if (gerador() % 2)
                texto[lugar] = novo;
            else
                texto.insert(lugar, 1, novo);
        }
        const std::string bytes = ParaUtf8(texto);
        const bool esperado = Lento(texto, false, tamanho);
        validos += esperado;
        ASSERT_EQ(ValidouCnpjCpf(cpf ? tiCPF : tiCNPJ, texto), esperado) << bytes;
        ASSERT_EQ((cpf ? ConferirCpf<char>(bytes) : ConferirCnpj<char>(bytes)) == mrNenhum, esperado) << bytes;
        if (cpf) continue;
        ASSERT_EQ(ValidouCnpjAlfanumerico(texto), Lento(texto, true, 14)) << bytes;
        ASSERT_EQ(ConferirCnpjAlfanumerico<char>(bytes) == mrNenhum, Lento(texto, true, 14)) << bytes;
    }
    EXPECT_GT(validos, 5000);
}

TEST(Documentos, PeloMotivoCerto) {
    const std::u16string megabyte(1 << 20, u'1');
    const std::u16string letras(1 << 20, u'A');
    const std::u16string pontos = std::u16string(1 << 20, u'.') + u"11222333000181";
    const auto cpf = ConferirCpf<char16_t>;
    const auto cnpj = ConferirCnpj<char16_t>;
    const auto alfanumerico = ConferirCnpjAlfanumerico<char16_t>;
    Testes::Conferir<TMotivoRecusa>({
        {cpf(u"529.982.247-25"), mrNenhum, "formatted"},
        {cpf(u"529.982.247-24"), mrDigito, "second digit"},
        {cpf(u"529.982.247-2x"), mrTamanho, "letters are dropped, then a digit is missing"},
        {cpf(u"11.222.333/0001-81"), mrTamanho, "a CNPJ"},
        {cpf(u""), mrTamanho, "empty"},
        {cpf(u"11111111111"), mrNenhum, "repeated digits pass"},
        {cnpj(u"00000000000000"), mrNenhum, "zeros too"},
        {cnpj(megabyte), mrTamanho, "a megabyte of digits"},
        {cnpj(pontos), mrNenhum, "a megabyte of punctuation"},
        {alfanumerico(u"12.ABC.345/01DE-35"), mrNenhum, "formatted"},
        {alfanumerico(u" 12abc 345 01de 35\t"), mrNenhum, "blanks, lower case"},
        {alfanumerico(u"12.ABC.345/01DE-25"), mrDigito, "first digit"},
        {alfanumerico(u"12.ABC.345/01DE-3A"), mrCaractere, "check digits are digits"},
        {alfanumerico(u"12.ABC.345/01DÉ-35"), mrCaractere, "an accented letter"},
        {alfanumerico(u"12_ABC34501DE"), mrCaractere, "another separator, before the length"},
        {alfanumerico(u"12ABC34501DE3"), mrTamanho, "short"},
        {alfanumerico(u"12ABC34501DE355_"), mrTamanho, "long"},
        {alfanumerico(letras), mrCaractere, "a megabyte of letters"},
        {ConferirPis(u"1234 5678 919"), mrNenhum, "spaces"},
        {ConferirPis(u"12345678918"), mrDigito, "digit"},
        {ConferirPis(u"123.45678.91-9"), mrTamanho, "punctuation counts"},
        {ConferirPis(u"1234567891a"), mrCaractere, "a letter"},
        {ConferirPis(u"-0000000001"), mrCaractere, "the number that also stands for no number"},
        {ConferirPis(u"\t2345678919"), mrCaractere, "only spaces are dropped"},
        {ConferirPis(megabyte), mrTamanho, "a megabyte"},
        {ConferirCei(u"00.000.00000/00"), mrNenhum, "zeros"},
        {ConferirCei(u"\t11.583.00249/85 "), mrNenhum, "blanks at the ends"},
        {ConferirCei(u"11.583.00249/84"), mrDigito, "digit"},
        {ConferirCei(u"11583002498"), mrTamanho, "short"},
        {ConferirCei(u"não é um CEI com doze"), mrTamanho, "no exception by another length"},
        {ConferirCei(u"0E0000000000"), mrNenhum, "a number of value zero"},
        {ConferirCei(u"+15830024985"), mrDigito, "a sign counts 0"},
        {ConferirCodigoMunicipio(u" 355.030.8. "), mrNenhum, "points, blanks at the ends"},
        {ConferirCodigoMunicipio(u"355030x"), mrDigito, "the last character is compared as text"},
        {ConferirCodigoMunicipio(u"355030"), mrTamanho, "short"},
        {ConferirCodigoMunicipio(u"35503088"), mrTamanho, "long"},
        {ConferirCodigoMunicipioOficial(u"2.201.919"), mrNenhum, "given out against the rule"},
    });
    for (const std::u16string_view cei : {u"11583a024985", u"abcdefghijkl", u"115830 24985"})
        EXPECT_THROW(TOryUtilsValidacoes::ValidouCNO(cei), EConvertError) << ParaUtf8(cei);
    EXPECT_EQ(Testes::MensagemDe([] { ConferirCodigoMunicipio(u"35x0308"); }), "'x' não é um valor inteiro válido");
    for (int tipo = 0; tipo <= 11; ++tipo)
        EXPECT_EQ(ValidouCnpjCpf(static_cast<TTipoInscricao>(tipo), u"11222333000181"), tipo == tiCNPJ) << tipo;
}

TEST(CnpjAlfanumerico, Formato) {
    EXPECT_EQ(FormatarCnpjAlfanumerico(u"12abc34501de35"), u"12.ABC.345/01DE-35");
    for (const std::u16string_view texto : {u"", u"12abc34501de3", u"12abc34501de355", u"12abc34501de3x"})
        EXPECT_EQ(FormatarCnpjAlfanumerico(texto), texto) << "unchanged";
}

TEST(CeiPisEMunicipio, UmSoDigitoParaCadaNumero) {
    Testes::TAcaso gerador;
    for (int i = 0; i < 20000; ++i) {
        const auto sorteado = static_cast<std::int64_t>(gerador() % 9'999'999'999) + 1;
        const std::u16string pis = Digitos(sorteado, 10);
        const std::u16string cei = Digitos(sorteado * 10 + i % 10, 11);
        const std::u16string municipio = pis.substr(4);
        int somaPis = 0, somaCei = 0, somaMunicipio = 0;
        for (std::size_t k = 0; k < 10; ++k) somaPis += (pis[9 - k] - u'0') * static_cast<int>(k % 8 + 2);
        for (std::size_t k = 0; k < 11; ++k) somaCei += (cei[k] - u'0') * ("74185216374"[k] - '0');
        for (std::size_t k = 0; k < 6; ++k)
            for (int p = (municipio[k] - u'0') * (k % 2 ? 2 : 1); p > 0; p /= 10) somaMunicipio += p % 10;
        for (int d = 0; d <= 9; ++d) {
            const std::u16string digito = Digitos(d, 1);
            ASSERT_EQ(ValidouPIS(pis + digito), d == somaPis * 10 % 11 % 10) << ParaUtf8(pis) << d;
            ASSERT_EQ(ValidouCEI(cei + digito), (somaCei % 10 + somaCei / 10 % 10 + d) % 10 == 0) << ParaUtf8(cei) << d;
            ASSERT_EQ(TOryUtilsValidacoes::ValidouCodigoMunicipio(municipio + digito), (somaMunicipio + d) % 10 == 0)
                << ParaUtf8(municipio) << d;
        }
    }
}

TEST(Municipio, OsNoveForaDaRegra) {
    for (const std::u16string_view codigo :
         {u"2201919", u"2201988", u"2202251", u"2611533", u"3117836", u"3152131", u"4305871", u"5203939", u"5203962"}) {
        EXPECT_EQ(ConferirCodigoMunicipio(codigo), mrDigito) << ParaUtf8(codigo);
        EXPECT_EQ(ConferirCodigoMunicipioOficial(codigo), mrNenhum) << ParaUtf8(codigo);
    }
}

TEST(Cnh, RecusaPeloMotivoCerto) {
    struct TCaso {
        std::u16string_view Numero;
        TMotivoRecusa Novo, Antigo, Final;
        const char* Porque;
    };
    const std::u16string megabyte(1 << 20, u'1');
    const TCaso casos[] = {
        {u"0", mrRepetido, mrRepetido, mrNenhum, "the integer 0"},
        {u" 00", mrRepetido, mrRepetido, mrNenhum, "the integer 0 after blanks"},
        {u"00 ", mrRepetido, mrRepetido, mrRepetido, "a blank after it"},
        {u"", mrRepetido, mrRepetido, mrRepetido, "empty"},
        {u"11111111111", mrRepetido, mrRepetido, mrRepetido, "one digit"},
        {u"11111111112", mrRepetido, mrRepetido, mrRepetido, "the last digit does not save it"},
        {u"12345678900", mrNenhum, mrDigito, mrNenhum, "new format"},
        {u"12345678909", mrNenhum, mrDigito, mrNenhum, "digit 11 takes no part"},
        {u"12345678910", mrDigito, mrDigito, mrDigito, "digit 10"},
        {u"2650306461", mrNenhum, mrNenhum, mrNenhum, "zero-filled; its ten digits pass the old format too"},
        {u"026.503.064-61", mrRepetido, mrRepetido, mrRepetido, "punctuation"},
        {u"-2650306461", mrRepetido, mrRepetido, mrRepetido, "a sign"},
        {u"123456789", mrDigito, mrNenhum, mrNenhum, "old format"},
        {u"12a", mrRepetido, mrRepetido, mrRepetido, "not a number"},
        {megabyte, mrRepetido, mrRepetido, mrRepetido, "too large for a number"},
    };
    for (const TCaso& caso : casos)
        EXPECT_EQ(std::tuple(ConferirNovoFormatoCnh(caso.Numero), ConferirFormatoAntigoCnh(caso.Numero),
                             ConferirCnh(caso.Numero)),
                  std::tuple(caso.Novo, caso.Antigo, caso.Final))
            << caso.Porque;
}

TEST(Cnh, IgualALeituraLenta) {
    Testes::TAcaso gerador;
    const auto confere = [](const std::u16string& n, std::size_t ASomados, std::size_t ALugar, bool ANovo) {
        bool difere = false;
        for (std::size_t i = 1; i + 1 < n.size(); ++i) difere |= n[i] != n[0];
        int soma = 0;
        for (std::size_t i = 0; i < ASomados; ++i) soma += (n[i] - u'0') * static_cast<int>(i + 2);
        const int r = soma % 11;
        const int c = ANovo ? (r < 2 ? 0 : 11 - r) : r % 10;
        return difere && n[ALugar] - u'0' == c;
    };
    for (int i = 0; i < 50000; ++i) {
        std::u16string numero;
        for (auto n = gerador() % 18 + 1; n > 0; --n)
            numero += static_cast<char16_t>(u'0' + gerador() % (i % 3 ? 10 : 2));
        std::u16string semZeros = numero.substr(std::min(numero.find_first_not_of(u'0'), numero.size()));
        const auto com = [&](std::size_t n) {
            return std::u16string(n > semZeros.size() ? n - semZeros.size() : 0, u'0') + semZeros;
        };
        const std::u16string novo = com(11), antigo = com(9);
        ASSERT_EQ(TOryUtilsValidacoes::ValidouNovoFormatoCNH(numero), confere(novo, novo.size() - 2, 9, true))
            << ParaUtf8(numero);
        ASSERT_EQ(TOryUtilsValidacoes::ValidouFormatoAntigoCNH(numero), confere(antigo, antigo.size() - 1, 8, false))
            << ParaUtf8(numero);
    }
}

}  // namespace
}  // namespace OryUtils
