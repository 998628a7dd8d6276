#include "oryutils/system/interno/ComandosServico.hpp"

#include "oryutils/runtime/Modelo.hpp"
#include "oryutils/system/UnOryUtilsSystemTypes.hpp"
#include "oryutils/text/OryUtilsStrings.hpp"

namespace OryUtils::Interno {
namespace {

constexpr std::u16string_view CLinhaDeAsteriscos =
    u"*******************************************************************************";
static_assert(CLinhaDeAsteriscos.size() == 79);

}  // namespace

std::u16string EscaparEntreAspas(std::u16string_view AValor) {
    std::u16string texto;
    texto.reserve(AValor.size());
    std::size_t barras = 0;
    for (const char16_t c : AValor) {
        if (c == u'"') texto.append(barras + 1, u'\\');
        barras = c == u'\\' ? barras + 1 : 0;
        texto += c;
    }
    return texto.append(barras, u'\\');
}

std::u16string MontarArgumento(std::u16string_view AValor) {
    if (!AValor.empty() && AValor.find_first_of(u" \t\"") == std::u16string_view::npos) return std::u16string(AValor);
    return u'"' + EscaparEntreAspas(AValor) + u'"';
}

std::u16string MontarComandoRecuperacao(std::u16string_view AServico) {
    return PreencherModelo(u"sc failure \"%s\" actions= restart/0/restart/0// reset= 240",
                           {EscaparEntreAspas(AServico)});
}

std::u16string MontarComandoDependencia(std::u16string_view AServico, std::u16string_view ADependencia) {
    return PreencherModelo(u"sc config %s depend= %s", {MontarArgumento(AServico), MontarArgumento(ADependencia)});
}

std::u16string MontarComandoLogon(std::u16string_view AServico, std::u16string_view AConta,
                                  std::u16string_view ASenha) {
    return PreencherModelo(u"sc config \"%s\" obj= \"%s\" password= \"%s\"",
                           {EscaparEntreAspas(AServico), EscaparEntreAspas(AConta), EscaparEntreAspas(ASenha)});
}

std::u16string MontarComandoConfiguracao(std::u16string_view AServico,
                                         const std::vector<std::u16string>& AConfiguracoes) {
    std::u16string comando = PreencherModelo(u"sc config \"%s\"", {EscaparEntreAspas(AServico)});
    for (const std::u16string& configuracao : AConfiguracoes) comando.append(u" ").append(configuracao);
    return comando;
}

bool SaidaIndicaFalha(std::u16string_view ASaida) {
    static const std::vector<std::u16string> palavras(CVetorListaErroConfiguracaoServico.begin(),
                                                      CVetorListaErroConfiguracaoServico.end());
    return TOryUtilsStrings::TextoContemItemVetor(ASaida, palavras, false);
}

std::u16string MontarMensagemFalha(std::u16string_view AInicio, std::u16string_view ASaida) {
    std::u16string texto(AInicio);
    texto.append(u"Erro ocorrido: \r\n\r\n").append(CLinhaDeAsteriscos).append(u"\r\n").append(ASaida);
    texto.append(u"\r\n").append(CLinhaDeAsteriscos);
    return texto.append(u"\r\n\r\nReinicie a aplicação em modo administrador e tente novamente.");
}

}  // namespace OryUtils::Interno
