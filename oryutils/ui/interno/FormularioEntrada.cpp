#include "oryutils/ui/interno/FormularioEntrada.hpp"

#include "oryutils/ui/interno/FormularioPedido.hpp"

namespace OryUtils {
namespace {

class TFormularioEntrada final : public TFormularioPedido {
public:
    TFormularioEntrada(std::u16string_view ATitulo, std::u16string_view APergunta, std::u16string_view AValor,
                       const TTextosDialogos& ATextos)
        : TFormularioPedido(ATitulo, APergunta, ATextos) {
        FPartes.Edicao = &Adicionar<TCaixaEdicao>();
        FPartes.Edicao->SetNome(u"Valor");
        FPartes.Edicao->SetTexto(AValor);
        FPartes.Edicao->SelecionarTudo();
        SetControleAtivo(FPartes.Edicao);
        Concluir();
    }

    const std::u16string& GetValor() const { return FPartes.Edicao->GetTexto(); }
};

}  // namespace

bool ExecutarFormularioEntrada(std::u16string_view ATitulo, std::u16string_view APergunta, std::u16string& AValor,
                               const TTextosDialogos& ATextos) {
    TFormularioEntrada formulario(ATitulo, APergunta, AValor, ATextos);
    if (formulario.ExecutarModal() != mrOk) return false;
    AValor = formulario.GetValor();
    return true;
}

}  // namespace OryUtils
