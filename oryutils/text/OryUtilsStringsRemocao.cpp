// Removal and replacement of characters and texts.
#include "oryutils/characters/Acentos.hpp"
#include "oryutils/characters/Caixa.hpp"
#include "oryutils/text/OryUtilsStrings.hpp"
#include "oryutils/text/interno/Busca.hpp"
#include "oryutils/text/interno/Pertinencia.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

constexpr std::u16string_view CPontuacao = u".,_/-";

}  // namespace

std::u16string TOryUtilsStrings::RemoverAcentos(std::u16string_view ATexto) {
    std::u16string resultado(ATexto);
    std::transform(resultado.begin(), resultado.end(), resultado.begin(), Interno::SemAcento);
    return resultado;
}

std::u16string TOryUtilsStrings::AllTrim(std::u16string_view ATexto) { return RemoverCaractere(ATexto, u" "); }

std::u16string TOryUtilsStrings::LimparTexto(std::u16string_view ATexto) {
    return LimparTexto(ATexto, TCaracteres(CPontuacao));
}

std::u16string TOryUtilsStrings::LimparTexto(std::u16string_view ATexto, TCaracteres ACaracteres) {
    return std::u16string(Aparar(RemoverCaractere(ATexto, ACaracteres.GetTexto())));
}

std::u16string TOryUtilsStrings::LimparTexto(std::u16string_view ATexto, const std::vector<std::u16string>& ATextos) {
    return SubstituirMultiplosTextos(ATexto, ATextos, {}, false);
}

std::u16string TOryUtilsStrings::LimparTextoMantendoCaracteres(std::u16string_view ATexto,
                                                               const TConjuntoCaracteres& ACaracteres) {
    return Interno::Filtrar(ATexto, [&](char16_t c) { return ACaracteres.Contem(c); });
}

std::u16string TOryUtilsStrings::ExtrairSomenteNumeros(std::u16string_view ATexto) {
    return Interno::Filtrar(ATexto, EhDigito);
}

std::u16string TOryUtilsStrings::RemoverCaractere(std::u16string_view ATexto, std::u16string_view ACaracteres) {
    const Interno::TPertinencia removidos(ACaracteres);
    return Interno::Filtrar(ATexto, [&](char16_t c) { return !removidos.Contem(c); });
}

std::u16string TOryUtilsStrings::RemoverCaracteres(TCaracteres ACaracteres, std::u16string_view ATexto) {
    const Interno::TPertinencia removidos(MinusculaDe(ACaracteres.GetTexto()));
    return Interno::Filtrar(ATexto, [&](char16_t c) { return !removidos.Contem(MinusculaDe(c)); });
}

std::u16string TOryUtilsStrings::RemoverCaractereSomenteDeTextos(std::u16string_view ATexto,
                                                                 [[maybe_unused]] char16_t ACaractere) {
    std::u16string resultado(Aparar(ATexto));
    bool entreAspas = false;
    for (char16_t& c : resultado) {
        if (c == u'\'') entreAspas = !entreAspas;
        if (c == u',' && entreAspas) c = u' ';
    }
    return resultado;
}

std::u16string TOryUtilsStrings::SubstituirCaracteresAcentuados(std::u16string_view ATexto,
                                                                std::u16string_view ASubstituto) {
    std::u16string resultado;
    resultado.reserve(ATexto.size());
    for (const char16_t c : ATexto) {
        if (EhCaractereAcentuadoOuEspecial(c))
            resultado += ASubstituto;
        else
            resultado += c;
    }
    return resultado;
}

std::u16string TOryUtilsStrings::SubstituirMultiplosTextos(std::u16string_view ATexto,
                                                           const std::vector<std::u16string>& AAntigos,
                                                           const std::vector<std::u16string>& ANovos,
                                                           bool AIgnorarCaixa) {
    std::u16string resultado(ATexto);
    for (std::size_t i = 0; i < AAntigos.size(); ++i) {
        const std::u16string_view novo = i < ANovos.size() ? std::u16string_view(ANovos[i]) : std::u16string_view();
        resultado = Interno::SubstituirTodos(resultado, AAntigos[i], novo, AIgnorarCaixa);
    }
    return resultado;
}

}  // namespace OryUtils
