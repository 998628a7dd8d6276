// Rules of persons, companies, vehicles and places.
#include "oryutils/registry_numbers/interno/RegrasDeNumeros.hpp"
#include "oryutils/registry_numbers/interno/RegrasEspeciais.hpp"
#include "oryutils/registry_numbers/interno/SomasDeDocumentos.hpp"
#include "oryutils/registry_numbers/interno/UnidadesFederativas.hpp"

namespace OryUtils::Interno {
namespace {

/// Municipalities whose code was given out with another check digit.
constexpr std::string_view CMunicipiosForaDaRegra[]{"2201919", "2201988", "2202251", "2611533", "3117836",
                                                    "3152131", "4305871", "5203939", "5203962"};

bool EhIsento(std::string_view AInscricao) noexcept { return AInscricao == "ISENTO" || AInscricao == "ISENTA"; }
bool EhDeProdutorPaulista(const TDocumentoLido& ALido) noexcept {
    const std::string_view numero = ALido.Numero;
    return ALido.Uf->Sigla == "SP" && numero.starts_with('P');
}

int NumeroDeControleDoCaepf(std::string_view ADoze) noexcept {
    const char primeiro = DigitoModulo11(SomarDe2A9(ADoze));
    // The first digit takes part with weight 2, and so moves the weights of the others.
    int soma = 2 * (primeiro - '0');
    for (std::size_t i = 0; i < 12; ++i) soma += static_cast<int>(2 + (12 - i) % 8) * ValorDe(ADoze[i]);
    return ((primeiro - '0') * 10 + (DigitoModulo11(soma) - '0') + 12) % 100;
}

struct TDigitosDaCnh {
    char Primeiro, Segundo;
};

TDigitosDaCnh CalcularDigitosDaCnh(std::string_view ANove) noexcept {
    int a = 0, b = 0;
    for (int i = 0; i < 9; ++i) {
        const int valor = ValorDe(ANove[static_cast<std::size_t>(i)]);
        a += (9 - i) * valor;
        b += (1 + i) * valor;
    }
    a %= 11;
    b %= 11;
    if (a == 10) {
        a = 0;
        b = (b + 9) % 11;
    }
    return {ParaDigito(a), ParaDigito(b == 10 ? 0 : b)};
}

const TUnidadeFederativa& SortearUf(TSorteioDeDocumento& ASorteio) {
    return CUnidadesFederativas[static_cast<std::size_t>(ASorteio.Entre(0, std::size(CUnidadesFederativas) - 1))];
}

}  // namespace

TMotivoRecusa ConferirCpfOuCnpj(const TDocumentoLido& ALido) noexcept {
    const std::string_view numero = ALido.Numero;
    if (numero.size() == CFormatoCpf.Tamanho) return ConferirFormatos(CNumeroCpf, numero);
    return ConferirFormatos(CNumeroCnpj, numero);
}
std::string_view MascaraCpfOuCnpj(const TDocumentoLido& ALido) noexcept {
    const std::string_view numero = ALido.Numero;
    return numero.size() == CFormatoCpf.Tamanho ? CFormatoCpf.Mascara : CFormatoCnpj.Mascara;
}
std::string GerarCpfOuCnpj(TSorteioDeDocumento& ASorteio, TUf) {
    return ASorteio.Entre(0, 1) ? GerarDosFormatos(CNumeroCpf, ASorteio) : GerarDosFormatos(CNumeroCnpj, ASorteio);
}

TMotivoRecusa ConferirInscricao(const TDocumentoLido& ALido) noexcept {
    const std::string_view numero = ALido.Numero;
    // The word stands alone: no mark in it.
    if (EhIsento(numero)) return ALido.Texto.size() == numero.size() ? mrNenhum : mrCaractere;
    if (EhDeProdutorPaulista(ALido)) return ConferirFormatos(CIeProdutorSP, numero.substr(1));
    return ConferirFormatos(ALido.Uf->Inscricoes, numero);
}
std::string_view MascaraInscricao(const TDocumentoLido& ALido) noexcept {
    const std::string_view numero = ALido.Numero;
    if (EhIsento(numero)) return {};
    if (EhDeProdutorPaulista(ALido)) return CIeProdutorSP->Mascara;
    const TFormatoDocumento* formato = nullptr;
    ConferirFormatos(ALido.Uf->Inscricoes, numero, &formato);
    return formato->Mascara;
}
std::string GerarInscricao(TSorteioDeDocumento& ASorteio, TUf AUf) {
    if (AUf->Sigla == "SP" && ASorteio.Entre(0, 4) == 0) return "P" + GerarDosFormatos(CIeProdutorSP, ASorteio);
    return GerarDosFormatos(AUf->Inscricoes, ASorteio);
}

TMotivoRecusa ConferirCaepf(const TDocumentoLido& ALido) noexcept {
    const std::string_view numero = ALido.Numero;
    if (numero.size() != 14) return mrTamanho;
    return ParaInteiro(numero.substr(12)) == NumeroDeControleDoCaepf(numero.substr(0, 12)) ? mrNenhum : mrDigito;
}
std::string_view MascaraCaepf(const TDocumentoLido&) noexcept { return "000.000.000/000-00"; }
std::string GerarCaepf(TSorteioDeDocumento& ASorteio, TUf) {
    const std::string base = ASorteio.Digitos(12);
    const int controle = NumeroDeControleDoCaepf(base);
    return base + ParaDigito(controle / 10) + ParaDigito(controle % 10);
}

TMotivoRecusa ConferirCnhEmVigor(const TDocumentoLido& ALido) noexcept {
    const std::string_view numero = ALido.Numero;
    if (numero.size() != 11) return mrTamanho;
    const auto [primeiro, segundo] = CalcularDigitosDaCnh(numero.substr(0, 9));
    return numero[9] == primeiro && numero[10] == segundo ? mrNenhum : mrDigito;
}
std::string GerarCnh(TSorteioDeDocumento& ASorteio, TUf) {
    const std::string base = ASorteio.Digitos(9);
    const auto [primeiro, segundo] = CalcularDigitosDaCnh(base);
    return base + primeiro + segundo;
}

TMotivoRecusa ConferirPlaca(const TDocumentoLido& ALido) noexcept {
    const std::string_view numero = ALido.Numero;
    if (numero.size() != 7) return mrTamanho;
    const std::string semLetras{numero[3], numero[5], numero[6]};
    const bool letras = numero[0] > '9' && numero[1] > '9' && numero[2] > '9';
    return letras && SaoDigitos(semLetras) ? mrNenhum : mrForma;
}
std::string_view MascaraPlaca(const TDocumentoLido& ALido) noexcept {
    const std::string_view numero = ALido.Numero;
    return numero[4] <= '9' ? "000-0000" : "0000000";
}
std::string GerarPlaca(TSorteioDeDocumento& ASorteio, TUf) {
    return ASorteio.Letras(3) + ASorteio.Digitos(1) +
           (ASorteio.Entre(0, 1) ? ASorteio.Letras(1) : ASorteio.Digitos(1)) + ASorteio.Digitos(2);
}

TMotivoRecusa ConferirMunicipio(const TDocumentoLido& ALido) noexcept {
    const std::string_view numero = ALido.Numero;
    for (const std::string_view fora : CMunicipiosForaDaRegra)
        if (numero.starts_with(fora.substr(0, 6)) && numero.size() == 7) return numero == fora ? mrNenhum : mrDigito;
    return ConferirFormatos(CNumeroMunicipio, numero);
}
std::string GerarMunicipio(TSorteioDeDocumento& ASorteio, TUf) { return GerarDosFormatos(CNumeroMunicipio, ASorteio); }

TMotivoRecusa ConferirCep(const TDocumentoLido& ALido) noexcept {
    const std::string_view numero = ALido.Numero;
    if (numero.size() != 8) return mrTamanho;
    const TNumeroLido lido = LerNumero(numero, [](char) { return false; });
    if (ALido.Uf && Cumpre(ALido.Uf->Ceps, lido)) return mrNenhum;
    for (const TUnidadeFederativa& uf : CUnidadesFederativas)
        if (Cumpre(uf.Ceps, lido)) return ALido.Uf ? mrForaDoContexto : mrNenhum;
    return mrPrefixo;
}
std::string_view MascaraCep(const TDocumentoLido&) noexcept { return "00000-000"; }
std::string GerarCep(TSorteioDeDocumento& ASorteio, TUf AUf) {
    const TExigencia& ceps = (AUf ? *AUf : SortearUf(ASorteio)).Ceps;
    const auto& faixa = ceps.Faixas[static_cast<std::size_t>(ASorteio.Entre(0, static_cast<int>(ceps.Quantas) - 1))];
    const std::string inicio = std::to_string(ASorteio.Entre(faixa.De, faixa.Ate));
    return std::string(5 - inicio.size(), '0') + inicio + ASorteio.Digitos(3);
}

}  // namespace OryUtils::Interno
