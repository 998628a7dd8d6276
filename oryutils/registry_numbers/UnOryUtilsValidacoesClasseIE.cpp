#include "oryutils/registry_numbers/UnOryUtilsValidacoesClasseIE.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/registry_numbers/interno/RegrasIE.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

#include <algorithm>
#include <cstdint>

namespace OryUtils {
namespace {

using namespace RegrasIE;

/// Only the letters A to Z matter to an IE and to a UF.
constexpr char16_t Maiuscula(char16_t ACaractere) noexcept {
    return ACaractere >= u'a' && ACaractere <= u'z' ? static_cast<char16_t>(ACaractere - (u'a' - u'A')) : ACaractere;
}

template <typename TTexto>
void Guardar(TTexto& ADestino, std::u16string_view ATexto) noexcept {
    ADestino.Tamanho = std::min(ATexto.size(), ADestino.Texto.size());
    for (std::size_t i = 0; i < ADestino.Tamanho; ++i) ADestino.Texto[i] = Maiuscula(ATexto[i]);
}

bool TemIsent(std::u16string_view ATexto) noexcept {
    constexpr std::u16string_view CIsent = u"ISENT";
    return std::search(ATexto.begin(), ATexto.end(), CIsent.begin(), CIsent.end(),
                       [](char16_t ADoTexto, char16_t ADaPalavra) { return Maiuscula(ADoTexto) == ADaPalavra; }) !=
           ATexto.end();
}

constexpr TFormatosIE CSemFormatos;

/// The two letters of a unit in one number, either case alike: only letters become a capital without that bit.
class TSigla {
public:
    constexpr TSigla(char16_t APrimeira, char16_t ASegunda) noexcept
        : FLetras((APrimeira | std::uint32_t{ASegunda} << 16) & ~0x0020'0020U) {}
    constexpr TSigla(const char16_t* ASigla) noexcept : TSigla(ASigla[0], ASigla[1]) {}
    constexpr bool operator==(const TSigla&) const = default;

    static constexpr std::size_t CPosicoes = 1024;
    /// The lowest five bits of each letter.
    constexpr std::size_t BuscarPosicao() const noexcept { return (FLetras & 0x1F) << 5 | (FLetras >> 16 & 0x1F); }

private:
    std::uint32_t FLetras;
};

/// The formats of a unit, and the operation where an IE that fits none may still be valid: also one with the wrong
/// digits for the format of its length, when OutroTamanho.
struct TUnidade {
    TSigla Sigla;
    const TFormatosIE* Formatos;
    void (TOryUtilsValidacoesIE::*Validar)() noexcept = nullptr;
    bool OutroTamanho = false;
};

// clang-format off
constexpr std::array CUnidades{
    TUnidade{u"EX", &CSemFormatos, &TOryUtilsValidacoesIE::Validar_Exportacao}, TUnidade{u"AC", &CFormatosAC},
    TUnidade{u"AL", &CFormatosAL}, TUnidade{u"AM", &CFormatosAM}, TUnidade{u"AP", &CFormatosAP},
    TUnidade{u"BA", &CFormatosBA, &TOryUtilsValidacoesIE::Validar_BA, true}, TUnidade{u"CE", &CFormatosCE},
    TUnidade{u"DF", &CFormatosDF}, TUnidade{u"ES", &CFormatosES}, TUnidade{u"GO", &CFormatosGO},
    TUnidade{u"MA", &CFormatosMA}, TUnidade{u"MG", &CFormatosMG}, TUnidade{u"MS", &CFormatosMS},
    TUnidade{u"MT", &CFormatosMT, &TOryUtilsValidacoesIE::Validar_MT}, TUnidade{u"PA", &CFormatosPA},
    TUnidade{u"PB", &CFormatosPB}, TUnidade{u"PE", &CFormatosPE}, TUnidade{u"PR", &CFormatosPR},
    TUnidade{u"PI", &CFormatosPI}, TUnidade{u"RJ", &CFormatosRJ}, TUnidade{u"RN", &CFormatosRN},
    TUnidade{u"RO", &CFormatosRO}, TUnidade{u"RR", &CFormatosRR}, TUnidade{u"RS", &CFormatosRS},
    TUnidade{u"SC", &CFormatosSC}, TUnidade{u"SP", &CFormatosSP, &TOryUtilsValidacoesIE::Validar_SP},
    TUnidade{u"SE", &CFormatosSE}, TUnidade{u"TO", &CFormatosTO}};
// clang-format on

/// The only unit that each position may be of.
constexpr auto CIndiceDasUnidades = [] {
    std::array<std::uint8_t, TSigla::CPosicoes> indice{};
    for (std::size_t i = 0; i < CUnidades.size(); ++i)
        indice[CUnidades[i].Sigla.BuscarPosicao()] = static_cast<std::uint8_t>(i);
    return indice;
}();

const TUnidade* BuscarUnidade(std::u16string_view AUF) noexcept {
    if (AUF.size() != 2) return nullptr;
    const TSigla sigla(AUF[0], AUF[1]);
    const TUnidade& unidade = CUnidades[CIndiceDasUnidades[sigla.BuscarPosicao()]];
    return unidade.Sigla == sigla ? &unidade : nullptr;
}

}  // namespace

void TOryUtilsValidacoesIE::SetUF(std::u16string_view AUF) noexcept { Guardar(FUF, AUF); }

void TOryUtilsValidacoesIE::SetIE(std::u16string_view AIE) noexcept {
    const auto eh_estranho = [](char16_t c) { return !EhDigito(c) && c != u'P' && c != u'p'; };
    FIE.Tamanho = std::min(AIE.size(), FIE.Texto.size());
    bool estranho = false;
    for (std::size_t i = 0; i < FIE.Tamanho; ++i) {
        FIE.Texto[i] = Maiuscula(AIE[i]);
        estranho |= eh_estranho(AIE[i]);
    }
    if (AIE.size() > FIE.Tamanho) estranho |= std::ranges::any_of(AIE.substr(FIE.Tamanho), eh_estranho);
    FIsenta = estranho && TemIsent(AIE);
    if (estranho && !FIsenta) FIE.Tamanho = 0;
}

void TOryUtilsValidacoesIE::Validar() noexcept {
    const std::u16string_view ie = GetIE();
    if (ie.empty())
        FMotivo = mrVazio;
    else if (FIsenta)
        FMotivo = mrNenhum;
    else if (SoTemZeros(ie))
        FMotivo = mrRepetido;
    else if (ie.size() > CMaiorTamanho)
        FMotivo = mrTamanho;
    else if (const TUnidade* unidade = BuscarUnidade(GetUF()); !unidade)
        FMotivo = mrUf;
    else if (unidade->Validar)
        (this->*unidade->Validar)();
    else
        FMotivo = Conferir(*unidade->Formatos, ie);
}

// Apart from Validou, which so needs no room for the object.
[[gnu::noinline]] static bool ValidouPassoAPasso(std::u16string_view AIE, std::u16string_view AUF) noexcept {
    TOryUtilsValidacoesIE ie;
    ie.SetUF(AUF);
    ie.SetIE(AIE);
    ie.Validar();
    return ie.GetValido();
}

bool TOryUtilsValidacoesIE::Validou(std::u16string_view AIE, std::u16string_view AUF) noexcept {
    // Bare digits in a format of the unit are read where they stand.
    if (const TUnidade* unidade = BuscarUnidade(AUF)) {
        const TMotivoRecusa motivo = Conferir(*unidade->Formatos, AIE);
        if (motivo == mrNenhum) return !SoTemZeros(AIE);
        if (!unidade->OutroTamanho && (motivo == mrDigito || motivo == mrPrefixo)) return false;
    }
    return ValidouPassoAPasso(AIE, AUF);
}

std::u16string_view TOryUtilsValidacoesIE::FormatarBase(std::u16string_view AModelo) noexcept {
    return FormatarBase(AModelo, GetIE());
}

std::u16string_view TOryUtilsValidacoesIE::FormatarBase(std::u16string_view AModelo,
                                                        std::u16string_view ATexto) noexcept {
    constexpr std::size_t CDigitosExatos = 18;
    const std::size_t zeros = std::min(AModelo.size(), FBase.Texto.size());
    TTexto<20> base;
    if (!ATexto.empty() && ATexto.size() <= CDigitosExatos && std::ranges::all_of(ATexto, EhDigito)) {
        // The digits are the number: only the zeros on the left change.
        ATexto.remove_prefix(std::min(ATexto.find_first_not_of(u'0'), ATexto.size()));
        base.Tamanho = std::max({zeros, ATexto.size(), std::size_t{1}});
        std::fill_n(base.Texto.begin(), base.Tamanho - ATexto.size(), u'0');
        std::ranges::copy(ATexto, base.Texto.begin() + static_cast<std::ptrdiff_t>(base.Tamanho - ATexto.size()));
    } else {
        Guardar(base, EscreverZeros(TextoParaExtendedPadrao(ATexto, 0), static_cast<int>(zeros), FBase.Texto));
    }
    FBase = base;
    return {FBase.Texto.data(), FBase.Tamanho};
}

int TOryUtilsValidacoesIE::SomarBase(std::span<const int> APesos) const noexcept {
    return SomarBase(APesos, {FBase.Texto.data(), FBase.Tamanho});
}

int TOryUtilsValidacoesIE::SomarBase(std::span<const int> APesos, std::u16string_view ABase) const noexcept {
    int soma = 0;
    for (std::size_t i = 0; i < std::min(APesos.size(), ABase.size()); ++i)
        if (EhDigito(ABase[i])) soma += (ABase[i] - u'0') * APesos[i];
    return soma;
}

int TOryUtilsValidacoesIE::BuscarSomaModulo11(std::span<const int> APesos) const noexcept {
    return SomarBase(APesos) % 11;
}

int TOryUtilsValidacoesIE::BuscarSomaModulo11(std::span<const int> APesos, std::u16string_view ABase) const noexcept {
    return SomarBase(APesos, ABase) % 11;
}

int TOryUtilsValidacoesIE::BuscarDigitoPadrao(int AResto) noexcept { return CalcularDigitoPadrao(AResto); }

// Where a rule compares the IE with the text it expects, zeros and all, the base is the IE itself or the IE is refused:
// most units read the digits where they stand.
void TOryUtilsValidacoesIE::Validar_AC() noexcept { FMotivo = Conferir(CFormatosAC, GetIE()); }
void TOryUtilsValidacoesIE::Validar_AL() noexcept { FMotivo = Conferir(CFormatosAL, GetIE()); }
void TOryUtilsValidacoesIE::Validar_AM() noexcept { FMotivo = Conferir(CFormatosAM, GetIE()); }
void TOryUtilsValidacoesIE::Validar_AP() noexcept { FMotivo = Conferir(CFormatosAP, GetIE()); }
void TOryUtilsValidacoesIE::Validar_CE() noexcept { FMotivo = Conferir(CFormatosCE, GetIE()); }
void TOryUtilsValidacoesIE::Validar_DF() noexcept { FMotivo = Conferir(CFormatosDF, GetIE()); }
void TOryUtilsValidacoesIE::Validar_ES() noexcept { FMotivo = Conferir(CFormatosES, GetIE()); }
void TOryUtilsValidacoesIE::Validar_GO() noexcept { FMotivo = Conferir(CFormatosGO, GetIE()); }
void TOryUtilsValidacoesIE::Validar_MA() noexcept { FMotivo = Conferir(CFormatosMA, GetIE()); }
void TOryUtilsValidacoesIE::Validar_MG() noexcept { FMotivo = Conferir(CFormatosMG, GetIE()); }
void TOryUtilsValidacoesIE::Validar_MS() noexcept { FMotivo = Conferir(CFormatosMS, GetIE()); }
void TOryUtilsValidacoesIE::Validar_PA() noexcept { FMotivo = Conferir(CFormatosPA, GetIE()); }
void TOryUtilsValidacoesIE::Validar_PB() noexcept { FMotivo = Conferir(CFormatosPB, GetIE()); }
void TOryUtilsValidacoesIE::Validar_PE() noexcept { FMotivo = Conferir(CFormatosPE, GetIE()); }
void TOryUtilsValidacoesIE::Validar_PI() noexcept { FMotivo = Conferir(CFormatosPI, GetIE()); }
void TOryUtilsValidacoesIE::Validar_PR() noexcept { FMotivo = Conferir(CFormatosPR, GetIE()); }
void TOryUtilsValidacoesIE::Validar_RJ() noexcept { FMotivo = Conferir(CFormatosRJ, GetIE()); }
void TOryUtilsValidacoesIE::Validar_RN() noexcept { FMotivo = Conferir(CFormatosRN, GetIE()); }
void TOryUtilsValidacoesIE::Validar_RO() noexcept { FMotivo = Conferir(CFormatosRO, GetIE()); }
void TOryUtilsValidacoesIE::Validar_RR() noexcept { FMotivo = Conferir(CFormatosRR, GetIE()); }
void TOryUtilsValidacoesIE::Validar_RS() noexcept { FMotivo = Conferir(CFormatosRS, GetIE()); }
void TOryUtilsValidacoesIE::Validar_SC() noexcept { FMotivo = Conferir(CFormatosSC, GetIE()); }
void TOryUtilsValidacoesIE::Validar_SE() noexcept { FMotivo = Conferir(CFormatosSE, GetIE()); }
void TOryUtilsValidacoesIE::Validar_TO() noexcept { FMotivo = Conferir(CFormatosTO, GetIE()); }

void TOryUtilsValidacoesIE::Validar_BA() noexcept {
    // The number counts, not how it was written: the IE takes the zeros of each format in turn.
    FMotivo = mrTamanho;
    if (FIE.Tamanho > CMaiorTamanho) return;
    for (const std::u16string_view zeros : {u"00000000", u"000000000"}) {
        Guardar(FIE, FormatarBase(zeros));
        FMotivo = Conferir(CFormatosBA, GetIE());
        if (FMotivo == mrNenhum) return;
    }
}

void TOryUtilsValidacoesIE::Validar_MT() noexcept {
    if (FIE.Tamanho == 9) {
        std::shift_right(FIE.Texto.begin(), FIE.Texto.end(), 2);
        FIE.Texto[0] = FIE.Texto[1] = u'0';
        FIE.Tamanho += 2;
    }
    FMotivo = Conferir(CFormatosMT, GetIE());
}

void TOryUtilsValidacoesIE::Validar_SP() noexcept {
    const std::u16string_view ie = GetIE();
    FMotivo = (ie.starts_with(u'P') ? Conferir(CFormatosSPRural, ie.substr(1)) : Conferir(CFormatosSP, ie));
}

void TOryUtilsValidacoesIE::Validar_Exportacao() noexcept { FMotivo = mrNenhum; }

}  // namespace OryUtils
