#include "conferir/Colunas.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/registry_numbers/interno/CpfCnpj.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/text/OryUtilsStrings.hpp"

#include "conferir/Codificacao.hpp"
#include "conferir/ColunasDeCampos.hpp"

#include <algorithm>
#include <array>

namespace Ory {
namespace {

namespace Interno = OryUtils::Interno;
using OryUtils::TOryUtilsStrings;
using OryUtils::TOryUtilsValidacoes;

struct TNomeDeTipo {
    std::string_view Nome;
    TTipoColuna Tipo;
};

constexpr std::array CTipos{
    TNomeDeTipo{"cnpj", tcCnpj},
    TNomeDeTipo{"cpf", tcCpf},
    TNomeDeTipo{"documento", tcDocumento},
    TNomeDeTipo{"ie", tcIe},
    TNomeDeTipo{"uf", tcUf},
    TNomeDeTipo{"pis", tcPis},
    TNomeDeTipo{"cei", tcCei},
    TNomeDeTipo{"cno", tcCno},
    TNomeDeTipo{"cnh", tcCnh},
    TNomeDeTipo{"municipio", tcMunicipio},
    TNomeDeTipo{"email", tcEmail},
    TNomeDeTipo{"emails", tcEmails},
    TNomeDeTipo{"crc", tcCrc},
    TNomeDeTipo{"data", tcData},
    TNomeDeTipo{"hora", tcHora},
    TNomeDeTipo{"ip", tcIp},
    TNomeDeTipo{"cep", tcCep},
    TNomeDeTipo{"telefone", tcTelefone},
    TNomeDeTipo{"competencia", tcCompetencia},
    TNomeDeTipo{"ncm", tcNcm},
    TNomeDeTipo{"nenhum", tcNenhum},
};

// Headers without their punctuation, besides the names of the types.
constexpr std::array CCabecalhos{
    TNomeDeTipo{"cpfcnpj", tcDocumento},
    TNomeDeTipo{"cnpjcpf", tcDocumento},
    TNomeDeTipo{"inscricaoestadual", tcIe},
    TNomeDeTipo{"pispasep", tcPis},
    TNomeDeTipo{"codigomunicipio", tcMunicipio},
    TNomeDeTipo{"codigoibge", tcMunicipio},
    TNomeDeTipo{"fone", tcTelefone},
    TNomeDeTipo{"celular", tcTelefone},
    TNomeDeTipo{"enderecoip", tcIp},
    TNomeDeTipo{"datadenascimento", tcData},
};

constexpr bool EhBranco(char AByte) { return static_cast<unsigned char>(AByte) <= ' '; }

std::string_view Aparar(std::string_view ATexto) {
    while (!ATexto.empty() && EhBranco(ATexto.front())) ATexto.remove_prefix(1);
    while (!ATexto.empty() && EhBranco(ATexto.back())) ATexto.remove_suffix(1);
    return ATexto;
}

constexpr bool EhAlfanumerico(char32_t ACaractere) {
    return (ACaractere >= '0' && ACaractere <= '9') || (ACaractere >= 'A' && ACaractere <= 'Z') ||
           (ACaractere >= 'a' && ACaractere <= 'z');
}

std::string Normalizar(std::string_view ACabecalho) {
    std::string resultado;
    for (const char16_t c : TOryUtilsStrings::RemoverAcentos(Decodificar(ACabecalho)))
        if (EhAlfanumerico(c)) resultado += static_cast<char>(c >= 'A' && c <= 'Z' ? c + 32 : c);
    return resultado;
}

/// The field in UTF-16: in the buffer when it is short and ASCII, as nearly all are.
class TTextoDeCampo {
public:
    explicit TTextoDeCampo(std::string_view ACampo) {
        unsigned char uniao = 0;
        if (ACampo.size() <= FCurto.size()) {
            for (std::size_t i = 0; i < ACampo.size(); ++i) {
                uniao = static_cast<unsigned char>(uniao | static_cast<unsigned char>(ACampo[i]));
                FCurto[i] = static_cast<unsigned char>(ACampo[i]);
            }
            FTexto = {FCurto.data(), ACampo.size()};
        }
        if (uniao < 0x80 && ACampo.size() <= FCurto.size()) return;
        FLongo = Decodificar(ACampo);
        FTexto = FLongo;
    }
    TTextoDeCampo(const TTextoDeCampo&) = delete;
    TTextoDeCampo& operator=(const TTextoDeCampo&) = delete;

    std::u16string_view Get() const { return FTexto; }

private:
    std::array<char16_t, 40> FCurto;
    std::u16string FLongo{};
    std::u16string_view FTexto{};
};

constexpr std::size_t CTamanhoCpf = 11;

OryUtils::TTipoInscricao BuscarInscricaoDoDocumento(std::string_view ACampo) {
    const auto tamanho = std::count_if(ACampo.begin(), ACampo.end(),
                                       [](char c) { return EhAlfanumerico(static_cast<unsigned char>(c)); });
    return static_cast<std::size_t>(tamanho) <= CTamanhoCpf ? OryTypes::tiCPF : OryTypes::tiCNPJ;
}

bool EhPontuacaoDeIe(char AByte) { return AByte == '.' || AByte == '-' || AByte == '/' || AByte == ' '; }

/// The rule takes bare characters; people write them with points, hyphens and slashes.
std::string LimparIe(std::string_view ACampo) {
    std::string resultado(ACampo);
    std::erase_if(resultado, EhPontuacaoDeIe);
    return resultado;
}

bool ValidouIe(std::string_view ACampo, std::string_view AUf) {
    const TTextoDeCampo uf(Aparar(AUf));
    if (std::none_of(ACampo.begin(), ACampo.end(), EhPontuacaoDeIe))
        return TOryUtilsValidacoes::ValidouIE(TTextoDeCampo(ACampo).Get(), uf.Get());
    return TOryUtilsValidacoes::ValidouIE(TTextoDeCampo(LimparIe(ACampo)).Get(), uf.Get());
}

// Rules that raise for a text which is no number are not asked about characters that no number has: the answer would be
// an exception, and one for each line of a bad file costs a hundred times the check.
bool PodeSerNumero(std::string_view ACampo) {
    return std::all_of(ACampo.begin(), ACampo.end(), [](char c) {
        return (c >= '0' && c <= '9') || std::string_view(".,_/-+eE \t").find(c) != std::string_view::npos;
    });
}

/// The rule of ValidouCnpjAlfanumerico over bytes.
bool ValidouCnpj(std::string_view ACampo) { return Interno::ConferirCnpjAlfanumerico(ACampo) == OryUtils::mrNenhum; }

/// The rule of ValidouCnpjCpf over bytes.
bool ValidouCpf(std::string_view ACampo) { return Interno::ConferirCpf(ACampo) == OryUtils::mrNenhum; }

bool Validou(TTipoColuna ATipo, std::string_view ACampo, std::string_view AUf) {
    if (EhColunaDeCampo(ATipo)) return ValidouColunaDeCampo(ATipo, ACampo);
    switch (ATipo) {
        case tcCnpj:
            return ValidouCnpj(ACampo);
        case tcCpf:
            return ValidouCpf(ACampo);
        case tcDocumento:
            return BuscarInscricaoDoDocumento(ACampo) == OryTypes::tiCPF ? ValidouCpf(ACampo) : ValidouCnpj(ACampo);
        case tcIe:
            return ValidouIe(ACampo, AUf);
        case tcCei:
        case tcCno:
        case tcMunicipio:
            if (!PodeSerNumero(ACampo)) return false;
            break;
        default:
            break;
    }
    const TTextoDeCampo texto(ACampo);
    switch (ATipo) {
        case tcPis:
            return TOryUtilsValidacoes::ValidouPIS(texto.Get());
        case tcCei:
            return TOryUtilsValidacoes::ValidouCEI(texto.Get());
        case tcCno:
            return TOryUtilsValidacoes::ValidouCNO(texto.Get());
        case tcCnh:
            return TOryUtilsValidacoes::ValidouCNH(texto.Get());
        case tcMunicipio:
            return TOryUtilsValidacoes::ValidouCodigoMunicipioOficial(texto.Get());
        default:
            return true;
    }
}

void Juntar(std::string& ASaida, std::u16string_view ATexto) {
    for (const char16_t c : ATexto) ASaida += static_cast<char>(c);
}

void EscreverInscricao(std::string& ASaida, OryUtils::TTipoInscricao ATipo, std::string_view ACampo) {
    Juntar(ASaida, TOryUtilsStrings::FormatarInscricaoFederal(
                       ATipo, TOryUtilsStrings::ExtrairSomenteNumeros(TTextoDeCampo(ACampo).Get())));
}

bool EstahNaForma(std::string_view ACampo, std::string_view AForma) {
    return std::equal(ACampo.begin(), ACampo.end(), AForma.begin(), AForma.end(),
                      [](char c, char lugar) { return lugar == '0' ? c >= '0' && c <= '9' : c == lugar; });
}

// CNPJ and CPF are most of what files hold: written from byte to byte, as the library writes them.

void EscreverCnpj(std::string& ASaida, std::string_view ACampo) {
    if (EstahNaForma(ACampo, Interno::CFormatoCnpj.Mascara)) {
        ASaida += ACampo;
        return;
    }
    const auto cnpj = Interno::LerCnpjAlfanumerico(ACampo);
    if (Interno::TemFormaDeCnpj(cnpj)) return Interno::EscreverNaMascara(ASaida, Interno::CFormatoCnpj.Mascara, cnpj);
    Juntar(ASaida, TOryUtilsValidacoes::FormatarCnpjAlfanumerico(TTextoDeCampo(ACampo).Get()));
}

void EscreverCpf(std::string& ASaida, std::string_view ACampo) {
    if (EstahNaForma(ACampo, Interno::CFormatoCpf.Mascara)) {
        ASaida += ACampo;
        return;
    }
    const auto cpf = Interno::LerDigitos(ACampo);
    if (cpf.Tamanho == CTamanhoCpf) return Interno::EscreverNaMascara(ASaida, Interno::CFormatoCpf.Mascara, cpf);
    EscreverInscricao(ASaida, OryTypes::tiCPF, ACampo);
}

}  // namespace

std::optional<TTipoColuna> BuscarTipo(std::string_view ANome) {
    for (const TNomeDeTipo& tipo : CTipos)
        if (tipo.Nome == ANome) return tipo.Tipo;
    return {};
}

std::string_view BuscarNomeDoTipo(TTipoColuna ATipo) {
    for (const TNomeDeTipo& tipo : CTipos)
        if (tipo.Tipo == ATipo) return tipo.Nome;
    return {};
}

std::string ListarTipos() {
    std::string lista;
    for (const TNomeDeTipo& tipo : CTipos) {
        if (!lista.empty()) lista += ", ";
        lista += tipo.Nome;
    }
    return lista;
}

TTipoColuna ReconhecerCabecalho(std::string_view ACabecalho) {
    const std::string nome = Normalizar(ACabecalho);
    if (const auto tipo = BuscarTipo(nome)) return *tipo;
    for (const TNomeDeTipo& cabecalho : CCabecalhos)
        if (cabecalho.Nome == nome) return cabecalho.Tipo;
    return tcNenhum;
}

bool EhMesmoCabecalho(std::string_view AUm, std::string_view AOutro) { return Normalizar(AUm) == Normalizar(AOutro); }

TVeredito Conferir(TTipoColuna ATipo, std::string_view ACampo, std::string_view AUf) {
    const std::string_view campo = Aparar(ACampo);
    if (campo.empty()) return veVazio;
    try {
        return Validou(ATipo, campo, AUf) ? veValido : veInvalido;
    } catch (const OryUtils::EConvertError&) {
        return veInvalido;
    }
}

void EscreverFormatado(std::string& ASaida, TTipoColuna ATipo, std::string_view ACampo) {
    const std::string_view campo = Aparar(ACampo);
    if (EhColunaDeCampo(ATipo)) return EscreverCampoFormatado(ASaida, ATipo, campo);
    switch (ATipo) {
        case tcCnpj:
            return EscreverCnpj(ASaida, campo);
        case tcDocumento:
            if (BuscarInscricaoDoDocumento(campo) != OryTypes::tiCPF) return EscreverCnpj(ASaida, campo);
            [[fallthrough]];
        case tcCpf:
            return EscreverCpf(ASaida, campo);
        case tcCei:
            return EscreverInscricao(ASaida, OryTypes::tiCEI, campo);
        case tcCno:
            return EscreverInscricao(ASaida, OryTypes::tiCNO, campo);
        case tcPis:
            return EscreverInscricao(ASaida, OryTypes::tiPIS, campo);
        case tcCnh:
            return EscreverInscricao(ASaida, OryTypes::tiCNH, campo);
        case tcMunicipio:
            return EscreverInscricao(ASaida, OryTypes::tiNenhuma, campo);
        case tcIe:
            for (const char c : LimparIe(campo)) ASaida += static_cast<char>(c >= 'a' && c <= 'z' ? c - 32 : c);
            return;
        default:
            return;
    }
}

}  // namespace Ory
