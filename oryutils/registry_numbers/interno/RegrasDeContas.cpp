// Rules of bank slips, cards, accounts, fiscal keys and lawsuits.
#include "oryutils/registry_numbers/interno/RegrasDeNumeros.hpp"
#include "oryutils/registry_numbers/interno/RegrasEspeciais.hpp"
#include "oryutils/registry_numbers/interno/SomasDeDocumentos.hpp"
#include "oryutils/registry_numbers/interno/UnidadesFederativas.hpp"

#include <algorithm>

namespace OryUtils::Interno {
namespace {

constexpr std::size_t CTamanhoDoCodigo = 44, CTamanhoDaLinhaDoBoleto = 47, CTamanhoDaLinhaDaArrecadacao = 48;
constexpr std::size_t CBlocoDaArrecadacao = 11;

// Where the general digit stands in the bar code.
constexpr std::size_t CLugarNoBoleto = 5, CLugarNaArrecadacao = 4;

// The general digit of a bank slip is never 0.
char DigitoGeralDoBoleto(std::string_view ACodigo) noexcept {
    const char digito = DigitoModulo11(SomarDe2A9(ACodigo, CLugarNoBoleto));
    return digito == '0' ? '1' : digito;
}

std::string MontarLinhaDoBoleto(std::string_view ACodigo) {
    const auto campo = [](std::string ADigitos) {
        ADigitos += DigitoModulo10(ADigitos);
        return ADigitos;
    };
    const std::string inicio(ACodigo.substr(0, 4));
    return campo(inicio + std::string(ACodigo.substr(19, 5))) + campo(std::string(ACodigo.substr(24, 10))) +
           campo(std::string(ACodigo.substr(34, 10))) + std::string(ACodigo.substr(4, 15));
}

bool CamposDaLinhaConferem(std::string_view ALinha) noexcept {
    return ALinha[9] == DigitoModulo10(ALinha.substr(0, 9)) && ALinha[20] == DigitoModulo10(ALinha.substr(10, 10)) &&
           ALinha[31] == DigitoModulo10(ALinha.substr(21, 10));
}

// The third digit of a collection slip says how its check digits are counted.
char DigitoDaArrecadacao(char AModalidade, std::string_view ANumero, std::size_t ASem = 0) noexcept {
    const bool modulo10 = AModalidade == '6' || AModalidade == '7';
    return modulo10 ? DigitoModulo10(ANumero, ASem) : DigitoModulo11(SomarDe2A9(ANumero, ASem));
}

bool BlocosConferem(std::string_view ALinha) noexcept {
    for (std::size_t i = 0; i < CTamanhoDaLinhaDaArrecadacao; i += CBlocoDaArrecadacao + 1)
        if (ALinha[i + CBlocoDaArrecadacao] != DigitoDaArrecadacao(ALinha[2], ALinha.substr(i, CBlocoDaArrecadacao)))
            return false;
    return true;
}

// Justice and court, three digits.
constexpr TExigencia CTribunais{"100 200 300 401-406 490 500-524 590 600-627 700-712 801-827 913 921 926"};

std::string DigitosDoProcesso(std::string_view ANumero, std::string_view AResto) {
    const int digitos = 98 - RestoPor97("00", RestoPor97(AResto, RestoPor97(ANumero)));
    return {ParaDigito(digitos / 10), ParaDigito(digitos % 10)};
}

constexpr std::string_view CModelos[]{"55", "57", "58", "59", "62", "63", "64", "65", "66", "67"};

}  // namespace

TNumeroLimpo CodigoDeBarrasDoBoleto(std::string_view ANumero) noexcept {
    if (ANumero.size() != CTamanhoDaLinhaDoBoleto) return TNumeroLimpo(ANumero);
    TNumeroLimpo codigo(ANumero.substr(0, 4));
    for (const auto parte :
         {ANumero.substr(32, 15), ANumero.substr(4, 5), ANumero.substr(10, 10), ANumero.substr(21, 10)})
        codigo.Juntar(parte);
    return codigo;
}
TMotivoRecusa ConferirBoleto(const TDocumentoLido& ALido) noexcept {
    const std::string_view numero = ALido.Numero;
    const bool linha = numero.size() == CTamanhoDaLinhaDoBoleto;
    if (!linha && numero.size() != CTamanhoDoCodigo) return mrTamanho;
    if (linha && !CamposDaLinhaConferem(numero)) return mrDigito;
    const TNumeroLimpo lido = CodigoDeBarrasDoBoleto(numero);
    const std::string_view codigo = lido;
    return codigo[4] == DigitoGeralDoBoleto(codigo) ? mrNenhum : mrDigito;
}
std::string_view MascaraBoleto(const TDocumentoLido& ALido) noexcept {
    const std::string_view numero = ALido.Numero;
    return numero.size() == CTamanhoDoCodigo ? "" : "00000.00000 00000.000000 00000.000000 0 00000000000000";
}
std::string GerarBoleto(TSorteioDeDocumento& ASorteio, TUf) {
    std::string codigo = ASorteio.Digitos(3) + "90" + std::to_string(ASorteio.Entre(1000, 9999)) + ASorteio.Digitos(35);
    codigo[4] = DigitoGeralDoBoleto(codigo);
    return MontarLinhaDoBoleto(codigo);
}

TNumeroLimpo CodigoDeBarrasDaArrecadacao(std::string_view ANumero) noexcept {
    if (ANumero.size() != CTamanhoDaLinhaDaArrecadacao) return TNumeroLimpo(ANumero);
    TNumeroLimpo codigo;
    for (std::size_t i = 0; i < ANumero.size(); i += CBlocoDaArrecadacao + 1)
        codigo.Juntar(ANumero.substr(i, CBlocoDaArrecadacao));
    return codigo;
}
TMotivoRecusa ConferirArrecadacao(const TDocumentoLido& ALido) noexcept {
    const std::string_view numero = ALido.Numero;
    const bool linha = numero.size() == CTamanhoDaLinhaDaArrecadacao;
    if (!linha && numero.size() != CTamanhoDoCodigo) return mrTamanho;
    if (numero[0] != '8' || numero[1] == '0' || numero[1] == '8' || numero[2] < '6') return mrPrefixo;
    if (linha && !BlocosConferem(numero)) return mrDigito;
    const TNumeroLimpo lido = CodigoDeBarrasDaArrecadacao(numero);
    const std::string_view codigo = lido;
    return codigo[3] == DigitoDaArrecadacao(codigo[2], codigo, CLugarNaArrecadacao) ? mrNenhum : mrDigito;
}
std::string_view MascaraArrecadacao(const TDocumentoLido& ALido) noexcept {
    const std::string_view numero = ALido.Numero;
    return numero.size() == CTamanhoDoCodigo ? "" : "00000000000-0 00000000000-0 00000000000-0 00000000000-0";
}
std::string GerarArrecadacao(TSorteioDeDocumento& ASorteio, TUf) {
    std::string codigo = "8";
    codigo += "12345679"[ASorteio.Entre(0, 7)];
    codigo += ParaDigito(ASorteio.Entre(6, 9));
    codigo += "0" + ASorteio.Digitos(40);
    codigo[3] = DigitoDaArrecadacao(codigo[2], codigo, CLugarNaArrecadacao);
    std::string linha;
    for (std::size_t i = 0; i < codigo.size(); i += CBlocoDaArrecadacao) {
        const std::string bloco = codigo.substr(i, CBlocoDaArrecadacao);
        linha += bloco + DigitoDaArrecadacao(codigo[2], bloco);
    }
    return linha;
}

TMotivoRecusa ConferirCartao(const TDocumentoLido& ALido) noexcept {
    const std::string_view numero = ALido.Numero;
    if (numero.size() < 12 || numero.size() > 19) return mrTamanho;
    return numero.back() == DigitoModulo10(numero.substr(0, numero.size() - 1)) ? mrNenhum : mrDigito;
}
std::string_view MascaraCartao(const TDocumentoLido& ALido) noexcept {
    const std::string_view numero = ALido.Numero;
    return numero.size() == 16 ? "0000 0000 0000 0000" : "";
}
std::string GerarCartao(TSorteioDeDocumento& ASorteio, TUf) {
    const std::string base =
        ASorteio.Digitos(static_cast<std::size_t>(ASorteio.Entre(0, 1) ? 15 : ASorteio.Entre(11, 18)));
    return base + DigitoModulo10(base);
}

TMotivoRecusa ConferirIban(const TDocumentoLido& ALido) noexcept {
    const std::string_view numero = ALido.Numero;
    if (!numero.starts_with("BR")) return numero.size() == 29 ? mrPrefixo : mrTamanho;
    if (numero.size() != 29) return mrTamanho;
    if (!SaoDigitos(numero.substr(2, 25)) || numero[27] <= '9') return mrCaractere;
    return RestoPor97(numero.substr(0, 4), RestoPor97(numero.substr(4))) == 1 ? mrNenhum : mrDigito;
}
std::string_view MascaraIban(const TDocumentoLido&) noexcept { return "0000 0000 0000 0000 0000 0000 0000 0"; }
std::string GerarIban(TSorteioDeDocumento& ASorteio, TUf) {
    const std::string conta = ASorteio.Digitos(23) + "CP"[ASorteio.Entre(0, 1)] + ParaDigito(ASorteio.Entre(1, 9));
    const int digitos = 98 - RestoPor97("BR00", RestoPor97(conta));
    return std::string("BR") + ParaDigito(digitos / 10) + ParaDigito(digitos % 10) + conta;
}

TMotivoRecusa ConferirChaveFiscal(const TDocumentoLido& ALido) noexcept {
    const std::string_view numero = ALido.Numero;
    if (numero.size() != CTamanhoDoCodigo) return mrTamanho;
    if (!SaoDigitos(numero.substr(0, 6)) || !SaoDigitos(numero.substr(18))) return mrCaractere;
    const std::string_view modelo = numero.substr(20, 2);
    if (!BuscarUfPorCodigo(numero.substr(0, 2)) || std::ranges::find(CModelos, modelo) == std::end(CModelos))
        return mrPrefixo;
    const int mes = ParaInteiro(numero.substr(4, 2));
    if (mes < 1 || mes > 12) return mrData;
    if (modelo != "59" && ParaInteiro(numero.substr(25, 9)) == 0) return mrForma;
    return numero.back() == DigitoModulo11(SomarDe2A9(numero.substr(0, 43))) ? mrNenhum : mrDigito;
}
std::string_view MascaraChaveFiscal(const TDocumentoLido&) noexcept {
    return "0000 0000 0000 0000 0000 0000 0000 0000 0000 0000 0000";
}
std::string GerarChaveFiscal(TSorteioDeDocumento& ASorteio, TUf) {
    const auto ultimaUf = static_cast<int>(std::size(CUnidadesFederativas)) - 1;
    const auto ultimoModelo = static_cast<int>(std::size(CModelos)) - 1;
    std::string chave(CUnidadesFederativas[static_cast<std::size_t>(ASorteio.Entre(0, ultimaUf))].Codigo);
    chave += std::to_string(ASorteio.Entre(20, 29)) + std::to_string(100 + ASorteio.Entre(1, 12)).substr(1);
    chave += GerarDosFormatos(CNumeroCnpj, ASorteio);
    chave += CModelos[static_cast<std::size_t>(ASorteio.Entre(0, ultimoModelo))];
    chave += ASorteio.Digitos(3) + std::to_string(1'000'000'000 + ASorteio.Entre(1, 999'999'999)).substr(1) +
             ASorteio.Digitos(9);
    return chave + DigitoModulo11(SomarDe2A9(chave));
}

TMotivoRecusa ConferirProcesso(const TDocumentoLido& ALido) noexcept {
    const std::string_view numero = ALido.Numero;
    if (numero.size() != 20) return mrTamanho;
    if (!Cumpre(CTribunais, LerNumero(numero.substr(13, 3), [](char) { return false; }))) return mrPrefixo;
    const int resto = RestoPor97(numero.substr(7, 2), RestoPor97(numero.substr(9), RestoPor97(numero.substr(0, 7))));
    const int digitos = ParaInteiro(numero.substr(7, 2));
    return resto == 1 && digitos >= 2 && digitos <= 98 ? mrNenhum : mrDigito;
}
std::string_view MascaraProcesso(const TDocumentoLido&) noexcept { return "0000000-00.0000.0.00.0000"; }
std::string GerarProcesso(TSorteioDeDocumento& ASorteio, TUf) {
    const auto& faixa =
        CTribunais.Faixas[static_cast<std::size_t>(ASorteio.Entre(0, static_cast<int>(CTribunais.Quantas) - 1))];
    const std::string numero = ASorteio.Digitos(7);
    const std::string resto = std::to_string(ASorteio.Entre(1990, 2029)) +
                              std::to_string(ASorteio.Entre(faixa.De, faixa.Ate)) + ASorteio.Digitos(4);
    return numero + DigitosDoProcesso(numero, resto) + resto;
}

}  // namespace OryUtils::Interno
