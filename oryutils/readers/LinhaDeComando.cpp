#include "oryutils/readers/LinhaDeComando.hpp"

#include <algorithm>

namespace OryUtils::Interno {
namespace {

constexpr bool EhSeparador(char16_t ACaractere) { return ACaractere == u' ' || ACaractere == u'\t'; }

std::size_t Contar(std::u16string_view ATexto, std::size_t AInicio, char16_t ACaractere) {
    std::size_t fim = AInicio;
    while (fim < ATexto.size() && ATexto[fim] == ACaractere) ++fim;
    return fim - AInicio;
}

// The argument that begins at APosicao, which moves behind it.
std::u16string LerArgumento(std::u16string_view ATexto, std::size_t& APosicao) {
    std::u16string argumento;
    bool entreAspas = false;
    while (APosicao < ATexto.size() && (entreAspas || !EhSeparador(ATexto[APosicao]))) {
        const std::size_t barras = Contar(ATexto, APosicao, u'\\');
        APosicao += barras;
        std::size_t aspas = Contar(ATexto, APosicao, u'"');
        APosicao += aspas;
        argumento.append(aspas > 0 ? barras / 2 : barras, u'\\');
        if (aspas == 0) {
            if (barras == 0) argumento += ATexto[APosicao++];
            continue;
        }
        if (barras % 2 == 1) {
            argumento += u'"';
            --aspas;
        }
        // Three in a row, an opening one included, give one; two that are left open and close.
        const std::size_t total = aspas + (entreAspas ? 1 : 0);
        argumento.append(total / 3, u'"');
        entreAspas = total % 3 == 1;
    }
    return argumento;
}

}  // namespace

std::vector<std::u16string> SepararArgumentos(std::u16string_view AArgumentos) {
    std::vector<std::u16string> argumentos;
    std::size_t posicao = 0;
    while (true) {
        while (posicao < AArgumentos.size() && EhSeparador(AArgumentos[posicao])) ++posicao;
        if (posicao >= AArgumentos.size()) return argumentos;
        argumentos.push_back(LerArgumento(AArgumentos, posicao));
    }
}

std::vector<std::u16string> SepararLinhaDeComando(std::u16string_view ALinha) {
    if (ALinha.empty()) return {};
    const bool entreAspas = ALinha.front() == u'"';
    if (entreAspas) ALinha.remove_prefix(1);
    const auto fim = std::find_if(ALinha.begin(), ALinha.end(), [&](char16_t ACaractere) {
        return entreAspas ? ACaractere == u'"' : EhSeparador(ACaractere);
    });
    const auto tamanho = static_cast<std::size_t>(fim - ALinha.begin());
    std::vector<std::u16string> partes{std::u16string(ALinha.substr(0, tamanho))};
    std::vector<std::u16string> argumentos = SepararArgumentos(ALinha.substr(std::min(tamanho + 1, ALinha.size())));
    partes.insert(partes.end(), std::make_move_iterator(argumentos.begin()), std::make_move_iterator(argumentos.end()));
    return partes;
}

}  // namespace OryUtils::Interno
