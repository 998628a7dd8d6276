#include "oryutils/registry_numbers/UnOryUtilsValidacoesClasseCRC.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/registry_numbers/interno/MotivoRecusa.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

struct TCodigo {
    std::u16string_view Letras, Numero;
};
// clang-format off
// The old unit GB stays, and there is no 24.
constexpr std::array CUnidades{
    TCodigo{u"AM", u"01"}, TCodigo{u"PA", u"02"}, TCodigo{u"MA", u"03"}, TCodigo{u"PI", u"04"}, TCodigo{u"CE", u"05"},
    TCodigo{u"RN", u"06"}, TCodigo{u"PB", u"07"}, TCodigo{u"PE", u"08"}, TCodigo{u"AL", u"09"}, TCodigo{u"SE", u"10"},
    TCodigo{u"BA", u"11"}, TCodigo{u"ES", u"12"}, TCodigo{u"RJ", u"13"}, TCodigo{u"SP", u"14"}, TCodigo{u"PR", u"15"},
    TCodigo{u"SC", u"16"}, TCodigo{u"RS", u"17"}, TCodigo{u"MG", u"18"}, TCodigo{u"MT", u"19"}, TCodigo{u"GO", u"20"},
    TCodigo{u"DF", u"21"}, TCodigo{u"GB", u"22"}, TCodigo{u"MS", u"23"}, TCodigo{u"AP", u"25"}, TCodigo{u"AC", u"26"},
    TCodigo{u"RR", u"27"}, TCodigo{u"TO", u"28"}, TCodigo{u"RO", u"29"},
};
static_assert(CUnidades.size() == 28);
constexpr std::array CTipos{
    TCodigo{u"O", u"1"}, TCodigo{u"T", u"2"}, TCodigo{u"S", u"3"}, TCodigo{u"P", u"4"},
};
constexpr std::array CPesos{3, 10, 9, 8, 7, 6, 5, 4, 3, 2};
// clang-format on

constexpr int ValorDe(char16_t ACaractere) { return EhDigito(ACaractere) ? ACaractere - u'0' : 0; }

template <std::size_t N>
constexpr std::u16string_view Buscar(const std::array<TCodigo, N>& ATabela, std::u16string_view ALetras,
                                     std::u16string_view AAusente) {
    const auto codigo = std::ranges::find(ATabela, ALetras, &TCodigo::Letras);
    return codigo == ATabela.end() ? AAusente : codigo->Numero;
}

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
    std::array<char16_t, CTamanho> normal = FCRC;
    const std::u16string_view texto = GetCRC();
    Buscar(CUnidades, texto.substr(1, 2), u"00").copy(&normal[1], 2);
    Buscar(CTipos, texto.substr(9, 1), texto.substr(9, 1)).copy(&normal[9], 1);

    int soma = 0;
    for (std::size_t i = 0; i < CPesos.size(); ++i) soma += ValorDe(normal[i]) * CPesos[i];
    const int digito = 11 - soma % 11;
    FMotivo = (digito <= 9 ? digito : 0) == ValorDe(normal.back()) ? mrNenhum : mrDigito;
}

}  // namespace OryUtils
