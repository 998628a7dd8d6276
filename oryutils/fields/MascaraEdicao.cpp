// Keys and pasted texts in the text of a mask.
#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/fields/Mascara.hpp"
#include "oryutils/fields/interno/CamposDaMascara.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

struct TFaixa {
    std::size_t Inicio, Fim;
};
TFaixa BuscarSelecao(const TEdicaoMascara& AEdicao) {
    return {std::min(AEdicao.Cursor, AEdicao.Ancora), std::max(AEdicao.Cursor, AEdicao.Ancora)};
}

/// What was not taken, with the edit as it stood.
TEdicaoMascara Recusar(TEdicaoMascara AAntes) {
    AAntes.Recusada = true;
    return AAntes;
}

}  // namespace

std::u16string TMascara::Sair(std::u16string_view ATexto) const {
    std::u16string texto = ParaEdicao(ATexto);
    if (!FADireita) return texto;
    std::vector<std::size_t> campos;
    for (std::size_t i = 0; i < texto.size(); ++i)
        if (FLugares[i].Tipo != tlLiteral) campos.push_back(i);
    std::size_t vazios = 0;
    while (vazios < campos.size() && EhVazio(texto[campos[campos.size() - 1 - vazios]])) ++vazios;
    if (vazios == 0 || vazios == campos.size()) return texto;
    std::u16string antes = texto;
    for (std::size_t i = campos.size(); i-- > 0;) {
        const char16_t c = i >= vazios ? antes[campos[i - vazios]] : FBranco;
        // Places of different kinds: what does not fit further right stays.
        if (!EhVazio(c) && !LugarAceita(FLugares[campos[i]], c)) return antes;
        texto[campos[i]] = EhVazio(c) ? c : NaCaixa(FLugares[campos[i]], c);
    }
    return texto;
}

std::size_t TMascara::BuscarCampo(std::size_t APosicao) const noexcept {
    while (APosicao < FLugares.size() && FLugares[APosicao].Tipo == tlLiteral) ++APosicao;
    return APosicao;
}

void TMascara::Esvaziar(std::u16string& ATexto, std::size_t AInicio, std::size_t AFim) const {
    for (std::size_t i = AInicio; i < AFim; ++i)
        if (FLugares[i].Tipo != tlLiteral) ATexto[i] = FBranco;
}

TEdicaoMascara TMascara::Ajustar(const TEdicaoMascara& AEdicao) const {
    TEdicaoMascara edicao{ParaEdicao(AEdicao.Texto), AEdicao.Cursor, AEdicao.Ancora};
    edicao.Cursor = std::min(edicao.Cursor, edicao.Texto.size());
    edicao.Ancora = std::min(edicao.Ancora, edicao.Texto.size());
    return edicao;
}

/// A typed or pasted character; see Inserir. A place for any character has a blank, too.
std::optional<std::size_t> TMascara::Receber(std::u16string& ATexto, std::size_t APosicao, char16_t ACaractere) const {
    const std::size_t campo = BuscarCampo(APosicao);
    const bool qualquer = campo < ATexto.size() && FLugares[campo].Tipo == tlQualquer;
    if (!qualquer || !EhVazio(ACaractere)) return Inserir<false>(ATexto, APosicao, ACaractere);
    if (ACaractere != u' ') return std::nullopt;
    ATexto[campo] = FBranco;
    return campo + 1;
}

TEdicaoMascara TMascara::Digitar(const TEdicaoMascara& AEdicao, char16_t ACaractere) const {
    TEdicaoMascara antes = Ajustar(AEdicao);
    const auto [inicio, fim] = BuscarSelecao(antes);
    TEdicaoMascara depois = antes;
    if (EstahVazia()) {
        if (Interno::EhControle(ACaractere)) return Recusar(antes);
        depois.Texto.replace(inicio, fim - inicio, 1, ACaractere);
        depois.Cursor = depois.Ancora = inicio + 1;
        return depois;
    }
    Esvaziar(depois.Texto, inicio, fim);
    const auto seguinte = Receber(depois.Texto, inicio, ACaractere);
    if (!seguinte) return Recusar(antes);
    if (seguinte == inicio) return antes;  // a mark: a selection waits for what comes behind it
    depois.Cursor = depois.Ancora = BuscarCampo(*seguinte);
    return depois;
}

TEdicaoMascara TMascara::Colar(const TEdicaoMascara& AEdicao, std::u16string_view ATexto) const {
    const TEdicaoMascara antes = Ajustar(AEdicao);
    TEdicaoMascara edicao = antes;
    const auto [inicio, fim] = BuscarSelecao(edicao);
    if (EstahVazia()) {
        edicao.Texto.replace(inicio, fim - inicio, ATexto);
        edicao.Cursor = edicao.Ancora = inicio + ATexto.size();
        return edicao;
    }
    // A whole text of the mask keeps its empty places.
    if (BuscarCampo(0) >= inicio && EhTextoDaMascara(ATexto)) {
        edicao.Texto = ParaEdicao(ATexto);
        edicao.Cursor = edicao.Ancora = edicao.Texto.size();
        return edicao;
    }
    Esvaziar(edicao.Texto, inicio, fim);
    std::size_t cursor = inicio;
    for (const char16_t c : ATexto) {
        const auto seguinte = Receber(edicao.Texto, cursor, c);
        if (!seguinte) return Recusar(antes);
        cursor = BuscarCampo(*seguinte);
    }
    edicao.Cursor = edicao.Ancora = cursor;
    return edicao;
}

TEdicaoMascara TMascara::Teclar(const TEdicaoMascara& AEdicao, TTeclaMascara ATecla) const {
    TEdicaoMascara edicao = Ajustar(AEdicao);
    std::size_t& cursor = edicao.Cursor;
    const auto [inicio, fim] = BuscarSelecao(edicao);
    const bool semMascara = EstahVazia();
    std::size_t anterior = cursor;
    while (!semMascara && anterior > 0 && FLugares[anterior - 1].Tipo == tlLiteral) --anterior;

    if ((ATecla == tmApagar || ATecla == tmExcluir) && inicio < fim) {
        cursor = inicio;
        if (semMascara)
            edicao.Texto.erase(inicio, fim - inicio);
        else
            Esvaziar(edicao.Texto, inicio, fim);
    } else if (ATecla == tmApagar && anterior > 0) {
        cursor = anterior - 1;
        if (semMascara)
            edicao.Texto.erase(cursor, 1);
        else
            Esvaziar(edicao.Texto, cursor, anterior);
    } else if (ATecla == tmExcluir && BuscarCampo(cursor) < edicao.Texto.size()) {
        cursor = BuscarCampo(cursor);
        if (semMascara)
            edicao.Texto.erase(cursor, 1);
        else
            Esvaziar(edicao.Texto, cursor, cursor + 1);
    } else if (ATecla == tmEsquerda && anterior > 0) {
        cursor = anterior - 1;
    } else if (ATecla == tmDireita && cursor < edicao.Texto.size()) {
        cursor = BuscarCampo(BuscarCampo(cursor) + 1);
        cursor = std::min(cursor, edicao.Texto.size());
    } else if (ATecla == tmInicio) {
        cursor = BuscarCampo(0);
    } else if (ATecla == tmFim) {
        cursor = edicao.Texto.size();
        while (!semMascara && cursor > 0 &&
               (FLugares[cursor - 1].Tipo == tlLiteral || EhVazio(edicao.Texto[cursor - 1])))
            --cursor;
        cursor = BuscarCampo(cursor);
    }
    edicao.Ancora = cursor;
    return edicao;
}

std::optional<std::u16string> TMascara::LerTexto(std::u16string_view ATexto) const {
    if (!FADireita) {
        const TEdicaoMascara edicao = Colar({GetTextoVazio(), 0, 0}, ATexto);
        return edicao.Recusada ? std::nullopt : std::optional(edicao.Texto);
    }
    const auto conteudo = LerConteudo(ATexto);
    return conteudo ? Dispor(*conteudo) : std::nullopt;
}

std::u16string TMascara::SemVazios(std::u16string_view ATexto) const {
    std::u16string texto;
    for (std::size_t i = 0; i < std::min(ATexto.size(), FLugares.size()); ++i)
        if (FLugares[i].Tipo == tlLiteral || !EhVazio(ATexto[i])) texto += ATexto[i];
    return texto;
}

std::size_t TMascara::GetCursorDepoisDe(std::u16string_view ATexto, std::size_t AQuantos) const {
    const std::size_t fim = std::min(ATexto.size(), FLugares.size());
    const auto ehFora = [&](std::size_t i) { return FLugares[i].Tipo == tlLiteral || EhVazio(ATexto[i]); };
    std::size_t cursor = 0, vistos = 0;
    for (std::size_t i = 0; i < fim && vistos < AQuantos; ++i) {
        if (ehFora(i)) continue;
        ++vistos;
        cursor = i + 1;
    }
    if (!FADireita) return BuscarCampo(cursor);
    while (AQuantos == 0 && cursor < fim && ehFora(cursor)) ++cursor;
    return cursor;
}

}  // namespace OryUtils
