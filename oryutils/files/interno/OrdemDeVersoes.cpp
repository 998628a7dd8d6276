#include "oryutils/files/interno/OrdemDeVersoes.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/files/OryUtilsFiles.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace OryUtils::Interno {
namespace {

constexpr int CBitsDaParte = 16;
constexpr int CPartes = 4;

constexpr bool EhSeparador(char16_t ACaractere) noexcept { return ACaractere == u'.' || ACaractere == u','; }

std::optional<TChaveDeVersao> LerParte(std::u16string_view AParte) noexcept {
    const auto valor = TentarTextoParaInt64(AParte);
    if (!valor || *valor != static_cast<std::int32_t>(*valor)) return {};
    return static_cast<std::uint16_t>(*valor);
}

/// None where DividirVersao raises; nothing is allocated.
std::optional<TChaveDeVersao> TentarBuscarChave(std::u16string_view AVersao) noexcept {
    AVersao = Aparar(AVersao);
    TChaveDeVersao chave = 0;
    for (int parte = 1; parte < CPartes; ++parte) {
        const auto ponto =
            static_cast<std::size_t>(std::find_if(AVersao.begin(), AVersao.end(), EhSeparador) - AVersao.begin());
        if (ponto == AVersao.size()) break;
        const auto valor = LerParte(AVersao.substr(0, ponto));
        if (!valor) return {};
        chave |= *valor << CBitsDaParte * (CPartes - parte);
        AVersao.remove_prefix(ponto + 1);
    }
    if (AVersao.empty()) return chave;
    const auto build = LerParte(AVersao);
    if (!build) return {};
    return chave | *build;
}

/// The first pass of the bubble sort: it meets every entry that any pass compares, so it raises if one does.
void FazerUmaPassada(std::vector<std::u16string>& AVersoes) {
    for (std::size_t j = 0; j + 1 < AVersoes.size(); ++j)
        if (!AVersoes[j + 1].empty() && TOryUtilsFiles::CompararVersao(AVersoes[j], AVersoes[j + 1]) == fsMajor)
            std::swap(AVersoes[j], AVersoes[j + 1]);
}

/// True when the bubble sort never compares the entry: the first one with nothing behind it.
bool NuncaEhComparada(const std::vector<std::u16string>& AVersoes, std::size_t AIndice) {
    return AIndice == 0 && (AVersoes.size() == 1 || AVersoes[1].empty());
}

struct TPosicao {
    TChaveDeVersao Chave;
    std::size_t Indice;
    bool operator<(const TPosicao& AOutra) const noexcept {
        return Chave != AOutra.Chave ? Chave < AOutra.Chave : Indice < AOutra.Indice;
    }
};

}  // namespace

TChaveDeVersao BuscarChaveDeVersao(std::u16string_view AVersao) {
    if (const auto chave = TentarBuscarChave(AVersao)) return *chave;
    // It raises, with the bad part in its message.
    std::u16string versao(AVersao);
    std::replace(versao.begin(), versao.end(), u',', u'.');
    std::array<std::uint16_t, 4> partes{};
    TOryUtilsFiles::DividirVersao(versao, partes[0], partes[1], partes[2], partes[3]);
    return 0;
}

void OrdenarVersoes(std::vector<std::u16string>& AVersoes) {
    std::vector<TPosicao> posicoes;
    posicoes.reserve(AVersoes.size());
    for (std::size_t i = 0; i < AVersoes.size(); ++i) {
        const auto chave = TentarBuscarChave(AVersoes[i]);
        if (!chave && !NuncaEhComparada(AVersoes, i)) return FazerUmaPassada(AVersoes);
        posicoes.push_back({chave.value_or(0), i});
    }
    // Nothing is swapped with an empty entry, so nothing passes one: each stretch between them is sorted by itself.
    const auto vazia = [&](const TPosicao& APosicao) { return AVersoes[APosicao.Indice].empty(); };
    for (auto inicio = posicoes.begin(); inicio != posicoes.end();) {
        const auto fim = std::find_if(inicio, posicoes.end(), vazia);
        std::sort(inicio, fim);
        inicio = std::find_if_not(fim, posicoes.end(), vazia);
    }
    std::vector<std::u16string> ordenadas;
    ordenadas.reserve(AVersoes.size());
    for (const TPosicao& posicao : posicoes) ordenadas.push_back(std::move(AVersoes[posicao.Indice]));
    AVersoes = std::move(ordenadas);
}

}  // namespace OryUtils::Interno
