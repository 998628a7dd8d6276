#include "oryutils/forms/console/RespostaDeLista.hpp"

#include "oryutils/characters/Acentos.hpp"
#include "oryutils/characters/Caixa.hpp"
#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

#include <algorithm>

namespace OryUtils::Interno {
namespace {

constexpr std::size_t CMaisAchados = 20;  // of the items that answer a part of a text, these are shown

std::u16string Normalizar(std::u16string_view ATexto) {
    std::u16string texto(ATexto);
    std::ranges::transform(texto, texto.begin(), [](char16_t c) { return MinusculaDe(SemAcento(c)); });
    return texto;
}

/// From 1; none where ATexto is no number of an item.
std::optional<int> LerNumero(std::u16string_view ATexto, std::size_t ATotal) {
    const std::u16string texto(Aparar(ATexto));
    if (texto.empty() || texto.size() > 9 || !std::ranges::all_of(texto, EhDigito)) return std::nullopt;
    const auto numero = TextoParaInt64(texto);
    if (numero < 1 || static_cast<std::size_t>(numero) > ATotal) return std::nullopt;
    return static_cast<int>(numero);
}

std::vector<int> BuscarPeloTexto(const std::vector<std::u16string>& AItens, std::u16string_view ATexto) {
    const std::u16string procurado = Normalizar(ATexto);
    std::vector<int> iguais, partes;
    for (std::size_t i = 0; i < AItens.size(); ++i) {
        const std::u16string item = Normalizar(AItens[i]);
        if (item == procurado) iguais.push_back(static_cast<int>(i));
        if (item.find(procurado) != item.npos) partes.push_back(static_cast<int>(i));
    }
    return iguais.empty() ? partes : std::vector{iguais.front()};
}

/// One item, or with a hyphen a row of them.
TRespostaDeLista LerUm(const std::vector<std::u16string>& AItens, bool AVarios, std::u16string_view ATexto) {
    if (const auto numero = LerNumero(ATexto, AItens.size())) return {.Escolhidos = {*numero - 1}};
    const auto hifen = ATexto.find(u'-');
    if (AVarios && hifen != ATexto.npos) {
        const auto de = LerNumero(ATexto.substr(0, hifen), AItens.size());
        const auto ate = LerNumero(ATexto.substr(hifen + 1), AItens.size());
        TRespostaDeLista fila;
        if (de && ate)
            for (int i = *de; i <= *ate; ++i) fila.Escolhidos.push_back(i - 1);
        if (!fila.Escolhidos.empty()) return fila;
    }
    const auto achados = BuscarPeloTexto(AItens, Aparar(ATexto));
    if (achados.size() == 1) return {.Escolhidos = achados};
    if (achados.empty()) return {.Recusa = u"Resposta não reconhecida.\n"};
    TRespostaDeLista varios{.Recusa = u"Há mais de um:\n"};
    for (std::size_t i = 0; i < std::min(achados.size(), CMaisAchados); ++i)
        varios.Recusa +=
            u"  " + InteiroParaTexto(achados[i] + 1) + u". " + AItens[static_cast<std::size_t>(achados[i])] + u"\n";
    if (achados.size() > CMaisAchados) varios.Recusa += u"  ...\n";
    return varios;
}

}  // namespace

bool SaoIguaisNaConversa(std::u16string_view ATexto, std::u16string_view AResposta) {
    return Normalizar(ATexto) == Normalizar(AResposta);
}

TRespostaDeLista LerRespostaDeLista(const std::vector<std::u16string>& AItens, bool AVarios,
                                    std::u16string_view AResposta) {
    // An item may have a comma of its own.
    TRespostaDeLista inteira = LerUm(AItens, AVarios, AResposta);
    if (!AVarios || inteira.Recusa.empty() || AResposta.find(u',') == AResposta.npos) return inteira;
    TRespostaDeLista todas;
    while (!AResposta.empty()) {
        const auto virgula = AResposta.find(u',');
        TRespostaDeLista uma = LerUm(AItens, AVarios, AResposta.substr(0, virgula));
        if (!uma.Recusa.empty()) return uma;
        todas.Escolhidos.insert(todas.Escolhidos.end(), uma.Escolhidos.begin(), uma.Escolhidos.end());
        AResposta.remove_prefix(virgula == AResposta.npos ? AResposta.size() : virgula + 1);
    }
    std::ranges::sort(todas.Escolhidos);
    todas.Escolhidos.erase(std::unique(todas.Escolhidos.begin(), todas.Escolhidos.end()), todas.Escolhidos.end());
    return todas;
}

}  // namespace OryUtils::Interno
