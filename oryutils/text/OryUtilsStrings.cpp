// The global instance, and the tests of what a text is made of.
#include "oryutils/text/OryUtilsStrings.hpp"

#include "oryutils/characters/Acentos.hpp"
#include "oryutils/characters/Caixa.hpp"
#include "oryutils/text/interno/Busca.hpp"

#include <algorithm>

namespace OryUtils {

constinit TInstanciaGlobal<TOryUtilsStrings> GOryUtilsStrings;

bool TOryUtilsStrings::TextoEhAlfaNumerico(std::u16string_view ATexto) {
    return TextoPossuiNumeros(ATexto) && TextoPossuiCaracteres(ATexto);
}

bool TOryUtilsStrings::TextoEhSomenteNumerico(std::u16string_view ATexto) {
    return std::all_of(ATexto.begin(), ATexto.end(), [](char16_t c) { return EhDigito(c) || EhBranco(c); });
}

bool TOryUtilsStrings::TextoEhSomenteCaracteres(std::u16string_view ATexto) {
    return std::all_of(ATexto.begin(), ATexto.end(),
                       [](char16_t c) { return EhLetra(Interno::SemAcento(c)) || EhBranco(c); });
}

bool TOryUtilsStrings::TextoPossuiCaracteres(std::u16string_view ATexto) {
    return std::any_of(ATexto.begin(), ATexto.end(), EhLetra);
}

bool TOryUtilsStrings::TextoPossuiNumeros(std::u16string_view ATexto) {
    return std::any_of(ATexto.begin(), ATexto.end(), EhDigito);
}

bool TOryUtilsStrings::TextoPossuiSomenteCaracteresEspeciais(std::u16string_view ATexto) {
    return !TextoPossuiNumeros(ATexto) && !TextoPossuiCaracteres(ATexto);
}

bool TOryUtilsStrings::EhCaractereAcentuadoOuEspecial(char16_t ACaractere) {
    return ACaractere != u'\b' && ACaractere != u'.' && !EhDigito(ACaractere) && !EhLetra(ACaractere);
}

bool TOryUtilsStrings::TextoEhParametro(std::u16string_view ATexto, std::u16string_view APrefixo) {
    return ATexto.substr(0, 1) == APrefixo;
}

bool TOryUtilsStrings::TextoContemItemVetor(std::u16string_view ATexto, const std::vector<std::u16string>& AVetor,
                                            bool AExato) {
    return std::any_of(AVetor.begin(), AVetor.end(), [&](const std::u16string& AItem) {
        return AExato ? IguaisIgnorandoCaixa(ATexto, AItem)
                      : Interno::Localizar(ATexto, AItem, true) != Interno::CNaoEncontrado;
    });
}

}  // namespace OryUtils
