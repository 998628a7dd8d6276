#include "oryutils/characters/Utf.hpp"
#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/registry_numbers/interno/CpfCnpj.hpp"
#include "oryutils/registry_numbers/interno/OutrosDocumentos.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Formatos.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <random>
#include <set>

namespace OryUtils {
namespace {

using namespace OryTypes;
using namespace Interno;

std::u16string Digitos(std::int64_t AValor, int ADigitos) {
    return FormatarZeros(static_cast<Extended>(AValor), ADigitos);
}

// CPF and CNPJ as the rule tells it: keep the digits, count them, one digit after the other.
bool LentoCpfCnpj(TTipoInscricao ATipo, std::u16string_view ATexto) {
    std::vector<int> d;
    for (const char16_t c : ATexto)
        if (c >= u'0' && c <= u'9') d.push_back(c - u'0');
    if (d.size() != (ATipo == tiCPF ? 11U : 14U)) return false;
    const auto digito = [&](std::size_t AQuantos) {
        int soma = 0;
        int peso = 2;
        for (std::size_t i = AQuantos; i-- > 0; ++peso) {
            if (ATipo == tiCNPJ && peso == 10) peso = 2;
            soma += d[i] * peso;
        }
        const int c = 11 - soma % 11;
        return c > 9 ? 0 : c;
    };
    return digito(d.size() - 2) == d[d.size() - 2] && digito(d.size() - 1) == d[d.size() - 1];
}

// Both usual forms, changed forms and noise: the three ways of the library (over 16 bits, over bytes, any text) agree
// with the plain one.
TEST(CpfCnpj, IgualALeituraLenta) {
    const auto semente = std::random_device{}();
    std::mt19937 gerador(semente);
    int validos = 0;
    for (int i = 0; i < 200000; ++i) {
        const TTipoInscricao tipo = i % 2 ? tiCPF : tiCNPJ;
        const std::string_view forma = tipo == tiCPF ? (i % 3 ? CFormatoCpf.Mascara : "00000000000")
                                                     : (i % 3 ? CFormatoCnpj.Mascara : "00000000000000");
        std::u16string texto;
        for (const char lugar : forma)
            texto += lugar == '0' ? static_cast<char16_t>(u'0' + gerador() % 10) : static_cast<char16_t>(lugar);
        for (int valor = 0; valor < 100 && i % 8 == 0 && !LentoCpfCnpj(tipo, texto); ++valor) {
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
        const bool esperado = LentoCpfCnpj(tipo, texto);
        validos += esperado;
        ASSERT_EQ(ValidouCnpjCpf(tipo, texto), esperado) << ParaUtf8(texto) << " seed " << semente;
        const std::string bytes = ParaUtf8(texto);
        const auto motivo = tipo == tiCPF ? ConferirCpf<char>(bytes) : ConferirCnpj<char>(bytes);
        ASSERT_EQ(motivo == mrNenhum, esperado) << bytes << " seed " << semente;
    }
    EXPECT_GT(validos, 5000);
}

TEST(CpfCnpj, RecusaPeloMotivoCerto) {
    EXPECT_EQ(ConferirCpf<char16_t>(u"529.982.247-25"), mrNenhum);
    EXPECT_EQ(ConferirCpf<char16_t>(u"529.982.247-24"), mrDigito);
    EXPECT_EQ(ConferirCpf<char16_t>(u"529.982.247-2x"), mrTamanho) << "letters are dropped, then a digit is missing";
    EXPECT_EQ(ConferirCpf<char16_t>(u""), mrTamanho);
    EXPECT_EQ(ConferirCpf<char16_t>(u" 5 2 9 9 8 2 2 4 7 2 5 cpf"), mrNenhum);
    EXPECT_EQ(ConferirCpf<char>("52998224725"), mrNenhum);
    EXPECT_EQ(ConferirCnpj<char16_t>(u"11.222.333/0001-81"), mrNenhum);
    EXPECT_EQ(ConferirCpf<char16_t>(u"11.222.333/0001-81"), mrTamanho);
    EXPECT_EQ(ConferirCnpj<char16_t>(std::u16string(1 << 20, u'1')), mrTamanho);
    EXPECT_EQ(ConferirCnpj<char16_t>(std::u16string(1 << 20, u'.') + u"11222333000181"), mrNenhum);
    for (char16_t c = u'0'; c <= u'9'; ++c)
        EXPECT_TRUE(ValidouCnpjCpf(tiCPF, std::u16string(11, c))) << "repeated digits pass";
    EXPECT_TRUE(ValidouCnpjCpf(tiCNPJ, u"00000000000000"));
    for (int tipo = 0; tipo <= 11; ++tipo)
        EXPECT_EQ(ValidouCnpjCpf(static_cast<TTipoInscricao>(tipo), u"11222333000181"), tipo == tiCNPJ) << tipo;
}

TEST(CpfCnpj, UmDigitoTrocadoSeNota) {
    // No weight is a multiple of 11, so a change shows, except where two remainders share the digit 0.
    const std::u16string cnpj = u"11222333000181";
    for (std::size_t lugar = 0; lugar < cnpj.size(); ++lugar)
        for (char16_t c = u'0'; c <= u'9'; ++c) {
            std::u16string outro = cnpj;
            outro[lugar] = c;
            EXPECT_EQ(ValidouCnpjCpf(tiCNPJ, outro), outro == cnpj) << ParaUtf8(outro);
        }
}

TEST(CnpjAlfanumerico, RecusaPeloMotivoCerto) {
    struct TCaso {
        std::u16string_view Numero;
        TMotivoRecusa Esperado;
        const char* Porque;
    };
    const std::u16string megabyte(1 << 20, u'A');
    const TCaso casos[] = {
        {u"12.ABC.345/01DE-35", mrNenhum, "formatted"},
        {u"12abc34501de35", mrNenhum, "bare, lower case"},
        {u" 12 ABC 345 01DE 35\t", mrNenhum, "blanks"},
        {u"11.222.333/0001-81", mrNenhum, "numeric"},
        {u"12.ABC.345/01DE-36", mrDigito, "second digit"},
        {u"12.ABC.345/01DE-25", mrDigito, "first digit"},
        {u"12.ABC.345/01DE-3A", mrCaractere, "check digits are digits"},
        {u"12.ABC.345/01DÉ-35", mrCaractere, "an accented letter"},
        {u"12_ABC34501DE35", mrCaractere, "another separator"},
        {u"12ABC34501DE3", mrTamanho, "short"},
        {u"12ABC34501DE355", mrTamanho, "long"},
        {u"", mrTamanho, "empty"},
        {megabyte, mrCaractere, "a megabyte"},
    };
    for (const TCaso& caso : casos) EXPECT_EQ(ConferirCnpjAlfanumerico(caso.Numero), caso.Esperado) << caso.Porque;
    EXPECT_EQ(ConferirCnpjAlfanumerico<char>("12.ABC.345/01DE-35"), mrNenhum);
}

TEST(CnpjAlfanumerico, ContemOsNumericos) {
    const auto semente = std::random_device{}();
    std::mt19937_64 gerador(semente);
    for (int i = 0; i < 20000; ++i) {
        const std::u16string cnpj = Digitos(static_cast<std::int64_t>(gerador() % 1'000'000'000'000), 12) + u"00";
        for (int valor = 0; valor < 100; valor += 1 + i % 7) {
            const std::u16string texto = cnpj.substr(0, 12) + Digitos(valor, 2);
            ASSERT_EQ(ValidouCnpjAlfanumerico(texto), ValidouCnpjCpf(tiCNPJ, texto)) << ParaUtf8(texto);
        }
    }
}

TEST(CnpjAlfanumerico, Formato) {
    EXPECT_EQ(FormatarCnpjAlfanumerico(u"12abc34501de35"), u"12.ABC.345/01DE-35");
    EXPECT_EQ(FormatarCnpjAlfanumerico(u"12.ABC.345/01DE-35"), u"12.ABC.345/01DE-35");
    for (const std::u16string_view texto : {u"", u"12abc34501de3", u"12abc34501de3x", u"12abc34501dé35"})
        EXPECT_EQ(FormatarCnpjAlfanumerico(texto), texto) << "unchanged";
}

TEST(Pis, RecusaPeloMotivoCerto) {
    EXPECT_EQ(ConferirPis(u"12345678919"), mrNenhum);
    EXPECT_EQ(ConferirPis(u"1234 5678 919"), mrNenhum);
    EXPECT_EQ(ConferirPis(u"12345678918"), mrDigito);
    EXPECT_EQ(ConferirPis(u"123.45678.91-9"), mrTamanho);
    EXPECT_EQ(ConferirPis(u"1234567891a"), mrCaractere);
    EXPECT_EQ(ConferirPis(u"-0000000001"), mrCaractere) << "the number that also stands for no number";
    EXPECT_EQ(ConferirPis(u"\t2345678919"), mrCaractere) << "only spaces are dropped";
    EXPECT_EQ(ConferirPis(std::u16string(1 << 20, u'1')), mrTamanho);
    EXPECT_EQ(ConferirPis(u"00000000000"), mrNenhum);
}

TEST(Cei, RecusaPeloMotivoCerto) {
    EXPECT_EQ(ConferirCei(u"000000000000"), mrNenhum);
    EXPECT_EQ(ConferirCei(u"00.000.00000/00"), mrNenhum);
    EXPECT_EQ(ConferirCei(u"\t11.583.00249/85 "), mrNenhum);
    EXPECT_EQ(ConferirCei(u"11.583.00249/84"), mrDigito);
    EXPECT_EQ(ConferirCei(u"11583002498"), mrTamanho);
    EXPECT_EQ(ConferirCei(u"não é um CEI com doze"), mrTamanho) << "no exception by another length";
    EXPECT_EQ(ConferirCei(u"0E0000000000"), mrNenhum) << "a number of value zero";
    EXPECT_THROW(ValidouCEI(u"11583a024985"), EConvertError);
    EXPECT_THROW(TOryUtilsValidacoes::ValidouCNO(u"abcdefghijkl"), EConvertError);
    EXPECT_THROW(ValidouCEI(u"115830 24985"), EConvertError);
}

TEST(CeiEPis, UmSoDigitoParaCadaNumero) {
    const auto semente = std::random_device{}();
    std::mt19937_64 gerador(semente);
    for (int i = 0; i < 20000; ++i) {
        const auto sorteado = static_cast<std::int64_t>(gerador() % 9'999'999'999) + 1;
        const std::u16string pis = Digitos(sorteado, 10);
        const std::u16string cei = Digitos(sorteado * 10 + i % 10, 11);
        int de_pis = 0, de_cei = 0, soma_pis = 0, soma_cei = 0;
        for (std::size_t k = 0; k < 10; ++k) soma_pis += (pis[9 - k] - u'0') * static_cast<int>(k % 8 + 2);
        for (std::size_t k = 0; k < 11; ++k) soma_cei += (cei[k] - u'0') * ("74185216374"[k] - '0');
        for (int d = 0; d <= 9; ++d) {
            const bool certo_pis = d == soma_pis * 10 % 11 % 10;
            const bool certo_cei = (soma_cei % 10 + soma_cei / 10 % 10 + d) % 10 == 0;
            ASSERT_EQ(ValidouPIS(pis + Digitos(d, 1)), certo_pis) << ParaUtf8(pis) << d;
            ASSERT_EQ(ValidouCEI(cei + Digitos(d, 1)), certo_cei) << ParaUtf8(cei) << d;
            de_pis += certo_pis;
            de_cei += certo_cei;
        }
        ASSERT_EQ(de_pis + de_cei, 2);
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
    for (const TCaso& caso : casos) {
        EXPECT_EQ(ConferirNovoFormatoCnh(caso.Numero), caso.Novo) << caso.Porque;
        EXPECT_EQ(ConferirFormatoAntigoCnh(caso.Numero), caso.Antigo) << caso.Porque;
        EXPECT_EQ(ConferirCnh(caso.Numero), caso.Final) << caso.Porque;
    }
}

TEST(Cnh, IgualALeituraLenta) {
    const auto semente = std::random_device{}();
    std::mt19937_64 gerador(semente);
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
        std::u16string sem_zeros = numero.substr(std::min(numero.find_first_not_of(u'0'), numero.size()));
        const auto com = [&](std::size_t n) {
            return std::u16string(n > sem_zeros.size() ? n - sem_zeros.size() : 0, u'0') + sem_zeros;
        };
        const std::u16string novo = com(11), antigo = com(9);
        ASSERT_EQ(TOryUtilsValidacoes::ValidouNovoFormatoCNH(numero), confere(novo, novo.size() - 2, 9, true))
            << ParaUtf8(numero) << " seed " << semente;
        ASSERT_EQ(TOryUtilsValidacoes::ValidouFormatoAntigoCNH(numero), confere(antigo, antigo.size() - 1, 8, false))
            << ParaUtf8(numero) << " seed " << semente;
    }
}

TEST(Municipio, CadaPrefixoTemUmDigito) {
    std::u16string codigo(7, u'0');
    for (int prefixo = 0; prefixo < 1'000'000; ++prefixo) {
        int resto = prefixo, soma = 0;
        for (std::size_t i = 6; i-- > 0; resto /= 10) {
            codigo[i] = static_cast<char16_t>(u'0' + resto % 10);
            const int produto = resto % 10 * (i % 2 ? 2 : 1);
            soma += produto > 9 ? produto - 9 : produto;
        }
        int validos = 0;
        for (char16_t d = u'0'; d <= u'9'; ++d) {
            codigo[6] = d;
            if (!TOryUtilsValidacoes::ValidouCodigoMunicipio(codigo)) continue;
            ++validos;
            ASSERT_EQ((soma + d - u'0') % 10, 0) << prefixo;
        }
        ASSERT_EQ(validos, 1) << prefixo;
    }
}

TEST(Municipio, RecusaPeloMotivoCerto) {
    EXPECT_EQ(ConferirCodigoMunicipio(u"3550308"), mrNenhum);
    EXPECT_EQ(ConferirCodigoMunicipio(u" 355.030.8. "), mrNenhum);
    EXPECT_EQ(ConferirCodigoMunicipio(u"3550307"), mrDigito);
    EXPECT_EQ(ConferirCodigoMunicipio(u"355030x"), mrDigito) << "the last character is compared as text";
    EXPECT_EQ(ConferirCodigoMunicipio(u"355030"), mrTamanho);
    EXPECT_EQ(ConferirCodigoMunicipio(u"35503088"), mrTamanho);
    EXPECT_EQ(ConferirCodigoMunicipioOficial(u"2.201.919"), mrNenhum);
    try {
        ConferirCodigoMunicipio(u"35x0308");
        ADD_FAILURE() << "no exception";
    } catch (const EConvertError& erro) {
        EXPECT_STREQ(erro.what(), "'x' não é um valor inteiro válido");
    }
}

/// The column of that name of a file of the examples.
std::vector<std::u16string> LerColuna(const char* AArquivo, const std::string& AColuna) {
    std::ifstream arquivo(std::string(ORY_PASTA_DO_PROJETO "/examples/") + AArquivo);
    std::vector<std::u16string> valores;
    std::string linha;
    std::ptrdiff_t coluna = -1;
    while (std::getline(arquivo, linha)) {
        if (!linha.empty() && linha.back() == '\r') linha.pop_back();
        std::vector<std::string> campos(1);
        bool aspas = false;
        for (const char c : linha)
            if (c == '"')
                aspas = !aspas;
            else if (c == ',' && !aspas)
                campos.emplace_back();
            else
                campos.back() += c;
        if (coluna < 0)
            coluna = std::ranges::find(campos, AColuna) - campos.begin();
        else
            valores.push_back(DeUtf8(campos.at(static_cast<std::size_t>(coluna))));
    }
    return valores;
}

TEST(DadosReais, Bancos) {
    const auto cnpjs = LerColuna("bancos.csv", "cnpj");
    EXPECT_EQ(cnpjs.size(), 511U);
    for (const auto& cnpj : cnpjs) EXPECT_TRUE(ValidouCnpjCpf(tiCNPJ, cnpj)) << ParaUtf8(cnpj);
}

TEST(DadosReais, Municipios) {
    const auto codigos = LerColuna("municipios.csv", "codigo_municipio");
    EXPECT_EQ(codigos.size(), 5571U);
    std::set<std::u16string> fora;
    for (const auto& codigo : codigos) {
        EXPECT_TRUE(ValidouCodigoMunicipioOficial(codigo)) << ParaUtf8(codigo);
        if (!TOryUtilsValidacoes::ValidouCodigoMunicipio(codigo)) fora.insert(codigo);
    }
    EXPECT_EQ(fora, (std::set<std::u16string>{u"2201919", u"2201988", u"2202251", u"2611533", u"3117836", u"3152131",
                                              u"4305871", u"5203939", u"5203962"}));
}

}  // namespace
}  // namespace OryUtils
