#pragma once

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"
#include "oryutils/sql/UnOryUtilsClasseFiltroSql.hpp"

#include "pesquisa/Banco.hpp"

#include <algorithm>

// The same conditions as the database evaluates them, on rows that are already in memory.

namespace OryUtils {

struct TColunaEmMemoria {
    std::u16string_view Nome;
    bool Inteira = false;
};

/// Texts of different lengths compare as if blanks filled the shorter one, byte by byte in UTF-8.
inline int CompararTextos(std::u16string_view AUm, std::u16string_view AOutro) {
    std::string um = ParaUtf8(AUm), outro = ParaUtf8(AOutro);
    const std::size_t tamanho = std::max(um.size(), outro.size());
    um.resize(tamanho, ' ');
    outro.resize(tamanho, ' ');
    return um.compare(outro);
}

/// LIKE over whole characters: "%" is any text, "_" any one character.
inline bool CasaComModelo(std::u16string_view ATexto, std::u16string_view AModelo) {
    const auto caracteres = [](std::u16string_view A) {
        std::u32string resultado;
        for (std::size_t i = 0; i < A.size(); ++i) {
            resultado += A[i];
            if ((A[i] & 0xFC00) == 0xD800 && i + 1 < A.size()) resultado.back() = resultado.back() << 16 | A[++i];
        }
        return resultado;
    };
    const std::u32string texto = caracteres(ATexto), modelo = caracteres(AModelo);
    std::vector<bool> casa(texto.size() + 1);  // whether the model so far matches the first i characters
    casa[0] = true;
    for (const char32_t m : modelo) {
        if (m == U'%') {
            for (std::size_t i = 1; i < casa.size(); ++i) casa[i] = casa[i] || casa[i - 1];
            continue;
        }
        for (std::size_t i = casa.size() - 1; i > 0; --i) casa[i] = casa[i - 1] && (m == U'_' || m == texto[i - 1]);
        casa[0] = false;
    }
    return casa.back();
}

inline bool AtendeFolha(const TOryUtilsFiltroSql& AFolha, const std::vector<TColunaEmMemoria>& AColunas,
                        const Exemplos::TLinha& ALinha) {
    const auto coluna = std::find_if(AColunas.begin(), AColunas.end(), [&](const TColunaEmMemoria& A) {
        return IguaisIgnorandoCaixa(A.Nome, AFolha.GetCampo());
    });
    const Exemplos::TCelula& celula = ALinha.at(static_cast<std::size_t>(coluna - AColunas.begin()));
    const TCondicaoFiltro condicao = AFolha.GetCondicao();
    if (condicao == cfIsNull || condicao == cfIsNotNull) return celula.has_value() == (condicao == cfIsNotNull);
    if (!celula) return false;  // unknown, which WHERE takes as no

    const auto naCaixa = [&](const std::u16string& A) { return AFolha.GetUsarUpperCase() ? MaiusculaDe(A) : A; };
    const std::u16string texto = naCaixa(*celula);
    const auto comparar = [&](const std::u16string& AValor) {
        if (!coluna->Inteira) return CompararTextos(texto, AValor);
        const auto diferenca = TextoParaInt64(texto) - TextoParaInt64(AValor);
        return (diferenca > 0) - (diferenca < 0);
    };
    if (const auto* itens = AFolha.GetValor().GetItens()) {
        std::vector<int> ordens;
        for (const Variant& item : *itens) ordens.push_back(comparar(VarianteParaTexto(item)));
        if (condicao == cfBetween) return ordens.front() >= 0 && ordens.back() <= 0;
        return (std::ranges::count(ordens, 0) > 0) == (condicao == cfIn);
    }
    const std::u16string valor = VarianteParaTexto(AFolha.GetValor());
    if (condicao == cfIniciaCom) return texto.starts_with(valor);
    if (condicao == cfTerminaCom) return CasaComModelo(texto, u"%" + valor);
    if (condicao == cfContem) return CasaComModelo(texto, u"%" + valor + u"%");
    const int ordem = comparar(naCaixa(valor));
    if (condicao == cfIgual || condicao == cfDiferente) return (ordem == 0) == (condicao == cfIgual);
    if (ordem == 0) return condicao == cfMaiorIgual || condicao == cfMenorIgual;
    return (ordem > 0) == (condicao == cfMaior || condicao == cfMaiorIgual);
}

/// None when the node says nothing about any row.
inline std::optional<bool> Atende(const TOryUtilsFiltroSql& ANo, const std::vector<TColunaEmMemoria>& AColunas,
                                  const Exemplos::TLinha& ALinha) {
    if (ANo.GetCount() == 0) {
        if (ANo.GetCampo().empty() || ANo.GetTabela().empty() || ANo.GetCondicao() == cfNenhum) return {};
        return AtendeFolha(ANo, AColunas, ALinha);
    }
    std::optional<bool> resultado;
    for (int i = 0; i < ANo.GetCount(); ++i) {
        const auto filho = Atende(ANo.GetItem(i), AColunas, ALinha);
        if (!filho) continue;
        if (!resultado) resultado = ANo.GetOperador() == ofAnd;
        resultado = ANo.GetOperador() == ofAnd ? *resultado && *filho : *resultado || *filho;
    }
    return resultado;
}

/// A table as it stands in memory and in the database.
struct TTabelaDeTeste {
    std::u16string Nome;
    std::vector<TColunaEmMemoria> Colunas;
    std::vector<Exemplos::TLinha> Linhas;

    std::vector<Exemplos::TLinha> Filtrar(const TOryUtilsFiltroSql& AFiltro) const {
        std::vector<Exemplos::TLinha> resultado;
        for (const Exemplos::TLinha& linha : Linhas)
            if (Atende(AFiltro, Colunas, linha).value_or(true)) resultado.push_back(linha);
        std::sort(resultado.begin(), resultado.end());
        return resultado;
    }
};

}  // namespace OryUtils
