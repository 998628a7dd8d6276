#include "oryutils/registry_numbers/UnOryUtilsValidacoesClasseIE.hpp"

#include "oryutils/characters/Ascii.hpp"
#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/registry_numbers/interno/RegrasIE.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

using namespace Interno;
using C = TOryUtilsValidacoesIE;

constexpr std::size_t CMaiorIE = 14;

template <typename TTexto>
void Guardar(TTexto& ADestino, std::u16string_view ATexto) noexcept {
    ADestino.Tamanho = std::min(ATexto.size(), ADestino.Texto.size());
    for (std::size_t i = 0; i < ADestino.Tamanho; ++i) ADestino.Texto[i] = MaiusculaAscii(ATexto[i]);
}

bool TemIsent(std::u16string_view ATexto) noexcept {
    constexpr std::u16string_view CIsent = u"ISENT";
    return std::search(ATexto.begin(), ATexto.end(), CIsent.begin(), CIsent.end(),
                       [](char16_t ADoTexto, char16_t ADaPalavra) { return MaiusculaAscii(ADoTexto) == ADaPalavra; }) !=
           ATexto.end();
}

struct TUnidade {
    std::u16string_view UF;
    void (C::*Validar)() noexcept;
};
constexpr TUnidade CUnidades[]{
    {u"EX", &C::Validar_Exportacao}, {u"AC", &C::Validar_AC}, {u"AL", &C::Validar_AL}, {u"AM", &C::Validar_AM},
    {u"AP", &C::Validar_AP},         {u"BA", &C::Validar_BA}, {u"CE", &C::Validar_CE}, {u"DF", &C::Validar_DF},
    {u"ES", &C::Validar_ES},         {u"GO", &C::Validar_GO}, {u"MA", &C::Validar_MA}, {u"MG", &C::Validar_MG},
    {u"MS", &C::Validar_MS},         {u"MT", &C::Validar_MT}, {u"PA", &C::Validar_PA}, {u"PB", &C::Validar_PB},
    {u"PE", &C::Validar_PE},         {u"PI", &C::Validar_PI}, {u"PR", &C::Validar_PR}, {u"RJ", &C::Validar_RJ},
    {u"RN", &C::Validar_RN},         {u"RO", &C::Validar_RO}, {u"RR", &C::Validar_RR}, {u"RS", &C::Validar_RS},
    {u"SC", &C::Validar_SC},         {u"SE", &C::Validar_SE}, {u"SP", &C::Validar_SP}, {u"TO", &C::Validar_TO}};

const TUnidade* BuscarUnidade(std::u16string_view AUF) noexcept {
    if (AUF.size() != 2) return nullptr;
    const auto* unidade = std::ranges::find_if(
        CUnidades, [&](const TUnidade& AUma) { return AUma.UF[0] == AUF[0] && AUma.UF[1] == AUF[1]; });
    return unidade == std::end(CUnidades) ? nullptr : unidade;
}

}  // namespace

void C::SetUF(std::u16string_view AUF) noexcept { Guardar(FUF, AUF); }

void C::SetIE(std::u16string_view AIE) noexcept {
    const bool soDigitosEP =
        std::ranges::all_of(AIE, [](char16_t c) { return EhDigito(c) || MaiusculaAscii(c) == u'P'; });
    FIsenta = !soDigitosEP && TemIsent(AIE);
    Guardar(FIE, soDigitosEP || FIsenta ? AIE : std::u16string_view());
}

void C::Validar() noexcept {
    const std::u16string_view ie = GetIE();
    if (ie.empty())
        FMotivo = mrVazio;
    else if (FIsenta)
        FMotivo = mrNenhum;
    else if (ie.find_first_not_of(u'0') == ie.npos)
        FMotivo = mrRepetido;
    else if (ie.size() > CMaiorIE)
        FMotivo = mrTamanho;
    else if (const TUnidade* unidade = BuscarUnidade(GetUF()))
        (this->*unidade->Validar)();
    else
        FMotivo = mrUf;
}

bool C::Validou(std::u16string_view AIE, std::u16string_view AUF) noexcept {
    C ie;
    ie.SetUF(AUF);
    ie.SetIE(AIE);
    ie.Validar();
    return ie.GetValido();
}

std::u16string_view C::FormatarBase(std::u16string_view AModelo, std::u16string_view ATexto) noexcept {
    // Digits keep at least one digit, also under an empty pattern.
    const std::size_t menor = !ATexto.empty() && std::ranges::all_of(ATexto, EhDigito) ? 1 : 0;
    const int zeros = static_cast<int>(std::clamp(AModelo.size(), menor, FBase.Texto.size()));
    TTexto<20> base;
    Guardar(base, EscreverZeros(TextoParaExtendedPadrao(ATexto, 0), zeros, FBase.Texto));
    FBase = base;
    return GetBase();
}

int C::SomarBase(std::span<const int> APesos, std::u16string_view ABase) const noexcept {
    int soma = 0;
    for (std::size_t i = 0; i < std::min(APesos.size(), ABase.size()); ++i)
        if (EhDigito(ABase[i])) soma += (ABase[i] - u'0') * APesos[i];
    return soma;
}

void C::Validar_AC() noexcept { FMotivo = Conferir(CFormatosAC, GetIE()); }
void C::Validar_AL() noexcept { FMotivo = Conferir(CFormatosNoveDigitos, GetIE()); }
void C::Validar_AM() noexcept { FMotivo = Conferir(CFormatosNoveDigitos, GetIE()); }
void C::Validar_AP() noexcept { FMotivo = Conferir(CFormatosAP, GetIE()); }
void C::Validar_CE() noexcept { FMotivo = Conferir(CFormatosCE, GetIE()); }
void C::Validar_DF() noexcept { FMotivo = Conferir(CFormatosDF, GetIE()); }
void C::Validar_ES() noexcept { FMotivo = Conferir(CFormatosNoveDigitos, GetIE()); }
void C::Validar_GO() noexcept { FMotivo = Conferir(CFormatosGO, GetIE()); }
void C::Validar_MA() noexcept { FMotivo = Conferir(CFormatosMA, GetIE()); }
void C::Validar_MG() noexcept { FMotivo = Conferir(CFormatosMG, GetIE()); }
void C::Validar_MS() noexcept { FMotivo = Conferir(CFormatosMS, GetIE()); }
void C::Validar_PA() noexcept { FMotivo = Conferir(CFormatosPA, GetIE()); }
void C::Validar_PB() noexcept { FMotivo = Conferir(CFormatosPB, GetIE()); }
void C::Validar_PE() noexcept { FMotivo = Conferir(CFormatosPE, GetIE()); }
void C::Validar_PI() noexcept { FMotivo = Conferir(CFormatosPI, GetIE()); }
void C::Validar_PR() noexcept { FMotivo = Conferir(CFormatosPR, GetIE()); }
void C::Validar_RJ() noexcept { FMotivo = Conferir(CFormatosRJ, GetIE()); }
void C::Validar_RN() noexcept { FMotivo = Conferir(CFormatosRN, GetIE()); }
void C::Validar_RO() noexcept { FMotivo = Conferir(CFormatosRO, GetIE()); }
void C::Validar_RR() noexcept { FMotivo = Conferir(CFormatosRR, GetIE()); }
void C::Validar_RS() noexcept { FMotivo = Conferir(CFormatosRS, GetIE()); }
void C::Validar_SC() noexcept { FMotivo = Conferir(CFormatosNoveDigitos, GetIE()); }
void C::Validar_SE() noexcept { FMotivo = Conferir(CFormatosNoveDigitos, GetIE()); }
void C::Validar_TO() noexcept { FMotivo = Conferir(CFormatosTO, GetIE()); }

void C::Validar_BA() noexcept {
    // The number is valid in either length: the IE is completed with zeros to the eight and then to the nine digits.
    FMotivo = mrTamanho;
    if (FIE.Tamanho > CMaiorIE) return;
    for (const std::u16string_view zeros : {u"00000000", u"000000000"}) {
        Guardar(FIE, FormatarBase(zeros));
        FMotivo = Conferir(CFormatosBA, GetIE());
        if (FMotivo == mrNenhum) return;
    }
}

void C::Validar_MT() noexcept {
    if (FIE.Tamanho == 9) {
        std::shift_right(FIE.Texto.begin(), FIE.Texto.end(), 2);
        FIE.Texto[0] = FIE.Texto[1] = u'0';
        FIE.Tamanho += 2;
    }
    FMotivo = Conferir(CFormatosMT, GetIE());
}

void C::Validar_SP() noexcept {
    const std::u16string_view ie = GetIE();
    FMotivo = ie.starts_with(u'P') ? Conferir(CFormatosSPRural, ie.substr(1)) : Conferir(CFormatosSP, ie);
}

}  // namespace OryUtils
