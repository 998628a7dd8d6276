#include "oryutils/registry_numbers/UnOryUtilsValidacoesClasseCRC.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/registry_numbers/interno/RegraDeDocumento.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

using namespace Interno;

// clang-format off
/// The number of each unit is its place. GB is an old unit; nothing has the number 24.
constexpr std::u16string_view CUnidades[]{
    u"", u"AM", u"PA", u"MA", u"PI", u"CE", u"RN", u"PB", u"PE", u"AL", u"SE", u"BA", u"ES", u"RJ", u"SP", u"PR",
    u"SC", u"RS", u"MG", u"MT", u"GO", u"DF", u"GB", u"MS", u"", u"AP", u"AC", u"RR", u"TO", u"RO"};
// clang-format on
/// The number of each kind of registration is its place, counted from 1.
constexpr std::u16string_view CTipos = u"OTSP";

/// The number once unit and kind are digits.
constexpr TFormatoDocumento CFormatoCrc{11, {}, {{11, {3, 10, 9, 8, 7, 6, 5, 4, 3, 2}}}};

}  // namespace

void TOryUtilsValidacoesCRC::SetCRC(std::u16string_view ACRC) noexcept {
    FTamanho = ACRC.copy(FCRC.data(), CTamanho);
    FMotivo = mrVazio;
}

void TOryUtilsValidacoesCRC::Validar() noexcept {
    if (FTamanho != CTamanho) {
        FMotivo = FTamanho == 0 ? mrVazio : mrTamanho;
        return;
    }
    TNumeroLido crc = LerNumero(GetCRC(), [](char16_t) { return false; });
    const auto* achada = std::ranges::find(CUnidades, GetCRC().substr(1, 2));
    const auto unidade = achada == std::end(CUnidades) ? 0 : achada - CUnidades;
    crc.Valores[1] = static_cast<std::int16_t>(unidade / 10);
    crc.Valores[2] = static_cast<std::int16_t>(unidade % 10);
    if (const auto tipo = CTipos.find(FCRC[9]); tipo != CTipos.npos)
        crc.Valores[9] = static_cast<std::int16_t>(tipo + 1);
    std::ranges::replace_if(
        crc.Valores, [](std::int16_t AValor) { return AValor > 9; }, std::int16_t{0});
    FMotivo = Conferir(CFormatoCrc, crc);
}

}  // namespace OryUtils
