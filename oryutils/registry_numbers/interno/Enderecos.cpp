#include "oryutils/registry_numbers/interno/Enderecos.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/registry_numbers/UnOryUtilsValidacoesTypes.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

#include <algorithm>
#include <array>
#include <limits>

namespace OryUtils::Interno {
namespace {

constexpr std::size_t CAusente = std::u16string_view::npos;

// The entries of CCarateresEspeciais as a set. Each is one 8-bit character or empty.
static_assert(std::ranges::all_of(CCarateresEspeciais, [](std::u16string_view ATexto) {
    return ATexto.empty() || (ATexto.size() == 1 && ATexto.front() < 256);
}));
constexpr auto CEspeciais = [] {
    std::array<bool, 256> conjunto{};
    for (const std::u16string_view texto : CCarateresEspeciais)
        if (!texto.empty()) conjunto[texto.front()] = true;
    return conjunto;
}();

constexpr bool SaoVizinhos(std::size_t AUma, std::size_t AOutra) {
    return AUma != CAusente && AOutra != CAusente && (AUma + 1 == AOutra || AOutra + 1 == AUma);
}

}  // namespace

TRecusaEmail ConferirEmail(std::u16string_view AEndereco) noexcept {
    if (Aparar(AEndereco).empty()) return reNenhuma;
    const std::size_t arroba = AEndereco.find(u'@');
    const std::size_t ponto = AEndereco.find(u'.');
    if (arroba == CAusente) return reSemArroba;
    if (ponto == CAusente) return reSemPonto;
    if (std::u16string_view(u"@._-").find(AEndereco.front()) != CAusente) return reInicio;
    if (AEndereco.back() == u'@' || AEndereco.back() == u'.') return reFim;
    if (AEndereco.find(u' ') != CAusente) return reEspaco;
    for (const std::size_t marca : {ponto, AEndereco.find(u'-'), AEndereco.find(u'_')})
        if (SaoVizinhos(arroba, marca)) return reVizinho;
    // A domain that begins with "com" is refused, as it always was: most are a forgotten provider name.
    if (AEndereco.find(u"com") == arroba + 1) return reVizinho;
    if (std::ranges::any_of(AEndereco, [](char16_t c) { return c < 256 && CEspeciais[c]; })) return reCaractere;
    if (AEndereco.find(u"..") != CAusente) return rePontoDobrado;
    return AEndereco.find(u'@', arroba + 1) == CAusente ? reNenhuma : reArrobaDobrada;
}

TRecusaIp ConferirEnderecoIp(std::u16string_view AEndereco) noexcept {
    const std::u16string_view endereco = Aparar(AEndereco);
    if (endereco.empty()) return riNenhuma;

    // The scan has always counted in eight bits, so it looks at the length modulo 256. The conversion below reads all.
    std::array<std::size_t, 3> pontos{};
    std::size_t quantidade = 0;
    const std::size_t fim = endereco.size() % 256;
    for (std::size_t i = 0; i < fim; ++i) {
        if (EhDigito(endereco[i])) continue;
        if (endereco[i] != u'.') return riCaractere;
        if (quantidade == pontos.size()) return riPartes;
        pontos[quantidade++] = i;
    }
    if (quantidade < pontos.size()) return riPartes;

    std::size_t inicio = 0;
    for (std::size_t i = 0; i <= pontos.size(); ++i) {
        const std::size_t limite = i < pontos.size() ? pontos[i] : endereco.size();
        const std::u16string_view parte = endereco.substr(inicio, limite - inicio);
        inicio = limite + 1;
        const auto valor = TentarTextoParaInt64(parte);
        if (!valor || *valor > std::numeric_limits<int>::max() || *valor < std::numeric_limits<int>::min())
            return riParte;
        // A part with a leading zero may be above 255 ("0300"): it was once taken for octal.
        if (*valor > 255 && parte.front() != u'0') return riValor;
    }
    return riNenhuma;
}

}  // namespace OryUtils::Interno
