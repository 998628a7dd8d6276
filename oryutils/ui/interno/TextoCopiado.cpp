#include "oryutils/ui/interno/TextoCopiado.hpp"

#include "oryutils/ui/interno/FormularioMensagem.hpp"

namespace OryUtils {
namespace {

constexpr std::u16string_view CTraco = u"---------------------------\r\n";

std::u16string MontarOpcoes(const TGrupoOpcoes& AGrupo) {
    std::u16string texto;
    int indice = 0;
    for (const std::u16string& item : AGrupo.GetItens())
        texto += (indice++ == AGrupo.GetIndice() ? u"(x) " : u"( ) ") + RemoverAtalho(item) + u"\r\n";
    return texto;
}

}  // namespace

bool EhCtrlC(const TTecla& ATecla) noexcept {
    return ATecla.Codigo == u'C' && ATecla.Ctrl && !ATecla.Shift && !ATecla.Alt;
}

std::u16string MontarTextoCopiado(const TFormulario& AFormulario) {
    std::u16string corpo, botoes;
    if (const auto* mensagem = AFormulario.BuscarControle(CNomeDaMensagem)) corpo = mensagem->GetTexto() + u"\r\n";
    for (const auto& controle : AFormulario.GetControles()) {
        if (!controle->GetVisivel()) continue;
        const std::u16string texto = RemoverAtalho(controle->GetTexto());
        if (controle->GetTipo() == tcBotao) botoes += texto + u"   ";
        if (controle->GetTipo() == tcGrupoOpcoes) corpo += MontarOpcoes(static_cast<const TGrupoOpcoes&>(*controle));
        if (controle->GetTipo() == tcCaixaChecagem)
            corpo += (static_cast<const TCaixaChecagem&>(*controle).GetMarcada() ? u"[x] " : u"[ ] ") + texto + u"\r\n";
    }
    std::u16string copia;
    for (const std::u16string& parte : {AFormulario.GetTitulo() + u"\r\n", corpo, botoes + u"\r\n"})
        copia += std::u16string(CTraco) + parte;
    return copia + std::u16string(CTraco);
}

}  // namespace OryUtils
