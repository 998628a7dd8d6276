#include "oryutils/system/interno/RegrasDePastas.hpp"

#include "oryutils/runtime/Modelo.hpp"
#include "oryutils/text/OryUtilsStrings.hpp"

#include <algorithm>

namespace OryUtils::Interno {
namespace {

// "\" and ASeparador change places, so that the rules written for "\" hold for both, and changing again undoes it.
std::u16string TrocarSeparador(std::u16string_view ACaminho, char16_t ASeparador) {
    std::u16string caminho(ACaminho);
    for (char16_t& c : caminho)
        if (c == u'\\')
            c = ASeparador;
        else if (c == ASeparador)
            c = u'\\';
    return caminho;
}

}  // namespace

std::u16string BuscarPastaDoPrograma(std::u16string_view AExecutavel, char16_t ASeparador) {
    const std::size_t fim = AExecutavel.rfind(ASeparador);
    if (fim == AExecutavel.npos) return std::u16string(1, ASeparador);
    return std::u16string(AExecutavel.substr(0, fim + 1));
}

std::u16string MontarPastaVizinha(std::u16string_view APastaAplicacao, std::u16string_view ANome, char16_t ASeparador) {
    const std::u16string acima =
        TOryUtilsStrings::BuscarPastaDoNivelAnterior(TrocarSeparador(APastaAplicacao, ASeparador));
    std::u16string completa = TOryUtilsStrings::CompletarUltimoCaractereTexto(u'\\', acima);
    const bool raizSemNome = ASeparador == u'/' && APastaAplicacao.starts_with(ASeparador);
    if (completa.empty() && raizSemNome) completa = u'\\';
    return TrocarSeparador(completa, ASeparador).append(ANome);
}

std::u16string MontarNomeConfiguracaoForms(std::u16string_view AComputador, std::u16string_view AUsuario) {
    return PreencherModelo(u"FP_%s_%s.ini", {AComputador, AUsuario});
}

}  // namespace OryUtils::Interno
