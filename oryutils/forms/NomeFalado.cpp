#include "oryutils/forms/NomeFalado.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

std::u16string BuscarNomeDoIcone(int AId) {
    switch (AId) {
        case 32513:
            return u"Erro";
        case 32514:
            return u"Pergunta";
        case 32515:
            return u"Aviso";
        default:
            return u"Informação";
    }
}

const TControleFormulario* BuscarAnterior(const TControleFormulario& AControle) {
    const auto& controles = AControle.GetFormulario().GetControles();
    const auto este = std::ranges::find_if(controles, [&](const auto& c) { return c.get() == &AControle; });
    return este == controles.begin() ? nullptr : std::prev(este)->get();
}

}  // namespace

std::u16string BuscarNomeFalado(const TControleFormulario& AControle) {
    switch (AControle.GetTipo()) {
        case tcIcone:
            return BuscarNomeDoIcone(static_cast<const TIcone&>(AControle).GetIdIcone());
        case tcProgresso:
            return AControle.GetTexto();
        case tcBotao:
        case tcCaixaChecagem:
            return RemoverAtalho(AControle.GetTexto());
        case tcCaixaEdicao:
        case tcListaEscolha:
        case tcMemorando: {
            if (AControle.GetNome() == CNomeDaRolagem) return AControle.GetFormulario().GetTitulo();
            const TControleFormulario* anterior = BuscarAnterior(AControle);
            return anterior && anterior->GetTipo() == tcRotulo ? anterior->GetTexto() : AControle.GetNome();
        }
        default:
            return {};
    }
}

bool EhAlerta(const TFormulario& AFormulario) {
    return std::ranges::any_of(AFormulario.GetControles(), [](const auto& c) { return c->GetTipo() == tcIcone; });
}

std::u16string BuscarMensagemFalada(const TFormulario& AFormulario) {
    const TControleFormulario* mensagem = AFormulario.BuscarControle(CNomeDaMensagem);
    return mensagem ? mensagem->GetTexto() : std::u16string();
}

}  // namespace OryUtils
