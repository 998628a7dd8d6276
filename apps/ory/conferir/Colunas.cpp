#include "conferir/Colunas.hpp"

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/characters/Utf.hpp"
#include "oryutils/fields/Mascara.hpp"
#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/registry_numbers/interno/CpfCnpj.hpp"
#include "oryutils/registry_numbers/interno/MascarasDeCampos.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/FormatoDataHora.hpp"
#include "oryutils/text/OryUtilsStrings.hpp"

#include "Fluxos.hpp"
#include "Sugestao.hpp"
#include "conferir/Codificacao.hpp"

#include <algorithm>
#include <vector>

namespace Ory {
namespace {

namespace Interno = OryUtils::Interno;
using OryUtils::ParaUtf8;
using OryUtils::TCaracteres;
using OryUtils::TOryUtilsStrings;
using Regras = OryUtils::TOryUtilsValidacoes;

/// The answer for a valid field whose display form is AForma.
bool Aceitar(std::u16string_view AForma, std::string* AFormatado) {
    if (AFormatado) *AFormatado += ParaUtf8(AForma);
    return true;
}

/// A field whose display form is the field itself.
template <bool (*AValidou)(std::u16string_view)>
bool ConferirTexto(const TCampo& ACampo, std::string* AFormatado) {
    if (!AValidou(ACampo.Decodificar())) return false;
    if (AFormatado) *AFormatado += ACampo.Bytes;
    return true;
}

bool ConferirEmails(const TCampo& ACampo, std::string* AFormatado) {
    const std::u16string texto = ACampo.Decodificar();
    std::u16string_view resto = texto;
    while (true) {
        const std::size_t fim = resto.find_first_of(u";,");
        if (!Regras::ValidouEmail(OryUtils::Aparar(resto.substr(0, fim)))) return false;
        if (fim == resto.npos) break;
        resto.remove_prefix(fim + 1);
    }
    if (AFormatado) *AFormatado += ACampo.Bytes;
    return true;
}

bool ConferirCnpj(const TCampo& ACampo, std::string* AFormatado) {
    const auto cnpj = Interno::LerCnpjAlfanumerico(ACampo.Bytes);
    if (Interno::Conferir(Interno::CFormatoCnpj, cnpj) != OryUtils::mrNenhum) return false;
    if (AFormatado) Interno::EscreverNaMascara(*AFormatado, Interno::CFormatoCnpj.Mascara, cnpj);
    return true;
}

bool ConferirCpf(const TCampo& ACampo, std::string* AFormatado) {
    const auto cpf = Interno::LerDigitos(ACampo.Bytes);
    if (Interno::Conferir(Interno::CFormatoCpf, cpf) != OryUtils::mrNenhum) return false;
    if (AFormatado) Interno::EscreverNaMascara(*AFormatado, Interno::CFormatoCpf.Mascara, cpf);
    return true;
}

/// A number of the kind AInscricao, which is shown in the form of its kind.
template <OryUtils::TTipoInscricao AInscricao, bool (*AValidou)(std::u16string_view)>
bool ConferirNumero(const TCampo& ACampo, std::string* AFormatado) {
    const std::u16string texto = ACampo.Decodificar();
    if (!AValidou(texto)) return false;
    if (!AFormatado) return true;
    const std::u16string numeros = TOryUtilsStrings::ExtrairSomenteNumeros(texto);
    return Aceitar(TOryUtilsStrings::FormatarInscricaoFederal(AInscricao, numeros), AFormatado);
}

/// The same for a rule that raises for a text which is no number. Such a rule is not asked about characters that no
/// number has: the exception takes a hundred times as long as the check.
template <OryUtils::TTipoInscricao AInscricao, bool (*AValidou)(std::u16string_view)>
bool ConferirInteiro(const TCampo& ACampo, std::string* AFormatado) {
    if (ACampo.Bytes.find_first_not_of("0123456789.,_/-+eE \t") != ACampo.Bytes.npos) return false;
    return ConferirNumero<AInscricao, AValidou>(ACampo, AFormatado);
}

constexpr bool EhAlfanumerico(char16_t ACaractere) {
    return OryUtils::EhDigito(ACaractere) || OryUtils::EhLetra(ACaractere);
}

/// CPF or CNPJ, told apart by the length.
bool ConferirDocumento(const TCampo& ACampo, std::string* AFormatado) {
    constexpr std::ptrdiff_t CTamanhoCpf = 11;
    const auto tamanho =
        std::ranges::count_if(ACampo.Bytes, [](char c) { return EhAlfanumerico(static_cast<unsigned char>(c)); });
    return tamanho <= CTamanhoCpf ? ConferirCpf(ACampo, AFormatado) : ConferirCnpj(ACampo, AFormatado);
}

/// The rule takes bare characters; people write them with points, hyphens and slashes.
bool ConferirIe(const TCampo& ACampo, std::string* AFormatado) {
    const std::u16string limpa = TOryUtilsStrings::LimparTexto(ACampo.Decodificar(), TCaracteres(u".-/ "));
    const std::u16string uf = Decodificar(ACampo.UfDoRegistro);
    if (!Regras::ValidouIE(limpa, OryUtils::Aparar(uf))) return false;
    return !AFormatado || Aceitar(OryUtils::MaiusculaDe(limpa), AFormatado);
}

/// People write these numbers with other marks than the mask has, or with none.
std::u16string RetirarMarcas(const TCampo& ACampo) {
    return TOryUtilsStrings::LimparTexto(ACampo.Decodificar(), TCaracteres(u" .-/()"));
}

bool ConferirCrc(const TCampo& ACampo, std::string* AFormatado) {
    const std::u16string crc = OryUtils::MaiusculaDe(RetirarMarcas(ACampo));
    return crc.size() == 11 && Regras::ValidouCRC(crc) && Aceitar(crc, AFormatado);
}

bool ConferirData(const TCampo& ACampo, std::string* AFormatado) {
    const std::u16string texto = ACampo.Decodificar();
    if (!Regras::ValidouData(texto)) return false;
    if (!AFormatado) return true;
    return Aceitar(OryUtils::FormatarDataHora(u"dd/mm/yyyy", OryUtils::TextoParaData(texto)), AFormatado);
}

template <const std::u16string_view& AMascara>
const OryUtils::TMascara& BuscarMascara() {
    static const OryUtils::TMascara mascara(AMascara, OryUtils::BuscarFormatosBrasileiros());
    return mascara;
}

template <const std::u16string_view& AMascara>
bool AceitarMascarado(std::u16string_view ADigitos, std::size_t AMenosDigitos, std::string* AFormatado) {
    if (ADigitos.size() < AMenosDigitos || !BuscarMascara<AMascara>().Aceita(ADigitos)) return false;
    return !AFormatado || Aceitar(BuscarMascara<AMascara>().Exibir(ADigitos), AFormatado);
}

/// A number described by its mask. A form or a database may hold a part of it; a checked file holds the whole, which
/// has AMenosDigitos digits or more.
template <const std::u16string_view& AMascara, std::size_t AMenosDigitos>
bool ConferirMascarado(const TCampo& ACampo, std::string* AFormatado) {
    return AceitarMascarado<AMascara>(RetirarMarcas(ACampo), AMenosDigitos, AFormatado);
}

/// The area code stays apart from the number however many digits both have.
std::u16string FormatarTelefone(std::u16string_view ADigitos) {
    std::u16string_view area = ADigitos.substr(0, ADigitos.front() == u'0' ? 3 : 2);
    if (ADigitos.size() - area.size() < 8) area = ADigitos.substr(0, 2);
    const std::u16string_view numero = ADigitos.substr(area.size());
    const std::size_t meio = numero.size() - 4;
    std::u16string texto = u"(";
    texto.append(area).append(u")").append(numero.substr(0, meio)).append(u"-").append(numero.substr(meio));
    return texto;
}

bool ConferirTelefone(const TCampo& ACampo, std::string* AFormatado) {
    constexpr std::size_t CMenosDigitos = 10;  // area code and eight digits
    const std::u16string digitos = RetirarMarcas(ACampo);
    if (!AceitarMascarado<Interno::CMascaraFone>(digitos, CMenosDigitos, nullptr)) return false;
    return !AFormatado || Aceitar(FormatarTelefone(digitos), AFormatado);
}

/// Month and year.
bool ConferirCompetencia(const TCampo& ACampo, std::string* AFormatado) {
    constexpr std::size_t CDigitos = 6;
    const std::u16string digitos = RetirarMarcas(ACampo);
    const std::u16string mes = digitos.substr(0, 2);
    return mes >= u"01" && mes <= u"12" &&
           AceitarMascarado<Interno::CMascaraCompetencia>(digitos, CDigitos, AFormatado);
}

using OryTypes::tiCEI;
using OryTypes::tiCNO;
using OryTypes::tiNenhuma;
using OryTypes::tiPIS;

constexpr TTipoColuna CTipos[] = {
    {"cnpj", "", ConferirCnpj},
    {"cpf", "", ConferirCpf},
    {"documento", "cpfcnpj cnpjcpf", ConferirDocumento},
    {"ie", "inscricaoestadual", ConferirIe, true},
    {"pis", "pispasep", ConferirNumero<tiPIS, Regras::ValidouPIS>},
    {"cei", "", ConferirInteiro<tiCEI, Regras::ValidouCEI>},
    {"cno", "", ConferirInteiro<tiCNO, Regras::ValidouCNO>},
    {"cnh", "", ConferirNumero<tiNenhuma, Regras::ValidouCNH>},
    {"municipio", "codigomunicipio codigoibge", ConferirInteiro<tiNenhuma, Regras::ValidouCodigoMunicipioOficial>},
    {"email", "", ConferirTexto<Regras::ValidouEmail>},
    {"emails", "", ConferirEmails},
    {"crc", "", ConferirCrc},
    {"data", "datadenascimento", ConferirData},
    {"hora", "", ConferirTexto<Regras::ValidouHora>},
    {"ip", "enderecoip", ConferirTexto<Regras::ValidouEnderecoIP>},
    {"cep", "", ConferirMascarado<Interno::CMascaraCep, 8>},
    {"telefone", "fone celular", ConferirTelefone},
    {"competencia", "", ConferirCompetencia},
    {"ncm", "", ConferirMascarado<Interno::CMascaraNcm, 8>},
};

constexpr std::string_view CUf = "uf";
constexpr std::string_view CNenhum = "nenhum";

constexpr bool EhBranco(char AByte) { return static_cast<unsigned char>(AByte) <= ' '; }

std::string_view Aparar(std::string_view ATexto) {
    while (!ATexto.empty() && EhBranco(ATexto.front())) ATexto.remove_prefix(1);
    while (!ATexto.empty() && EhBranco(ATexto.back())) ATexto.remove_suffix(1);
    return ATexto;
}

std::string Normalizar(std::string_view ACabecalho) {
    std::u16string nome = TOryUtilsStrings::RemoverAcentos(Decodificar(ACabecalho));
    std::erase_if(nome, [](char16_t c) { return !EhAlfanumerico(c); });
    return ParaUtf8(OryUtils::MinusculaDe(nome));
}

bool TemCabecalho(const TTipoColuna& ATipo, std::string_view ANome) {
    const std::string nome = " " + std::string(ANome) + " ";
    return ATipo.Nome == ANome || (" " + std::string(ATipo.Cabecalhos) + " ").find(nome) != std::string::npos;
}

}  // namespace

std::u16string TCampo::Decodificar() const { return Ory::Decodificar(Bytes); }

std::span<const TTipoColuna> BuscarTipos() noexcept { return CTipos; }

namespace {

std::string SugerirPapel(std::string_view ANome) {
    std::vector<std::string> nomes{std::string(CUf), std::string(CNenhum)};
    for (const TTipoColuna& tipo : CTipos) nomes.emplace_back(tipo.Nome);
    return Sugerir(ANome, nomes);
}

}  // namespace

TPapelDaColuna BuscarPapel(std::string_view ANome) {
    if (ANome == CUf) return {.EhUf = true};
    if (ANome == CNenhum) return {};
    const auto* tipo = std::ranges::find(CTipos, ANome, &TTipoColuna::Nome);
    if (tipo == std::end(CTipos))
        throw EFalha("tipo desconhecido: " + std::string(ANome) + " (os tipos são " + ListarPapeis() + ")" +
                     SugerirPapel(ANome));
    return {.Tipo = tipo};
}

TPapelDaColuna ReconhecerCabecalho(std::string_view ACabecalho) {
    const std::string nome = Normalizar(ACabecalho);
    if (nome == CUf) return {.EhUf = true};
    if (nome.empty()) return {};
    const auto* tipo = std::ranges::find_if(CTipos, [&](const auto& t) { return TemCabecalho(t, nome); });
    return {.Tipo = tipo == std::end(CTipos) ? nullptr : tipo};
}

std::string ListarPapeis() {
    std::string lista;
    for (const TTipoColuna& tipo : CTipos) {
        lista.append(tipo.Nome).append(", ");
        if (tipo.PedeUf) lista.append(CUf).append(", ");
    }
    return lista.append(CNenhum);
}

bool EhMesmoCabecalho(std::string_view AUm, std::string_view AOutro) { return Normalizar(AUm) == Normalizar(AOutro); }

TVeredito Conferir(const TTipoColuna& ATipo, std::string_view ACampo, std::string_view AUf, std::string* AFormatado) {
    const std::string_view campo = Aparar(ACampo);
    if (campo.empty()) return veVazio;
    try {
        return ATipo.Regra({campo, AUf}, AFormatado) ? veValido : veInvalido;
    } catch (const OryUtils::EConvertError&) {
        return veInvalido;
    }
}

}  // namespace Ory
