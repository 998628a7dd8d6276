#include "oryutils/ui/interno/FormularioEntrada.hpp"

#include "oryutils/forms/NomeFalado.hpp"
#include "oryutils/forms/Toolkit.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"
#include "oryutils/ui/interno/Disposicao.hpp"

namespace OryUtils {
namespace {

constexpr int CLarguraEntrada = 190;  // client area, dialog units

class TFormularioEntrada final : public TFormulario {
public:
    TFormularioEntrada(std::u16string_view ATitulo, std::u16string_view APergunta, std::u16string_view AValor,
                       const TTextosDialogos& ATextos) {
        SetTitulo(ATitulo);
        OnAjuda = EventoDeAjuda();
        FPartes.Mensagem = &Adicionar<TRotulo>();
        FPartes.Mensagem->SetNome(CNomeDaMensagem);
        FPartes.Mensagem->SetTexto(APergunta);
        FPartes.Mensagem->SetQuebraLinha(true);
        FPartes.Edicao = &Adicionar<TCaixaEdicao>();
        FPartes.Edicao->SetNome(u"Valor");
        FPartes.Edicao->SetTexto(AValor);
        FPartes.Edicao->SelecionarTudo();
        SetControleAtivo(FPartes.Edicao);
        FPartes.LarguraMinima = CLarguraEntrada;
        FPartes.TextoNaLargura = true;
        AdicionarBotao(mbOK, ATextos).SetPadrao(true);
        AdicionarBotao(mbCancel, ATextos).SetCancelar(true);
        DisporDialogo(*this, FPartes);
    }

    const std::u16string& GetValor() const { return FPartes.Edicao->GetTexto(); }
    void AoMudarTela(int, int) override { DisporDialogo(*this, FPartes); }

private:
    TBotao& AdicionarBotao(TMsgDlgBtn ATipo, const TTextosDialogos& ATextos) {
        auto& botao = Adicionar<TBotao>();
        botao.SetNome(CNomesBotao[ATipo]);
        botao.SetTexto(ATextos.BuscarCaption(ATipo));
        botao.SetModalResult(CModalResults[ATipo]);
        return botao;
    }

    TPartesDoDialogo FPartes;
};

}  // namespace

bool ExecutarFormularioEntrada(std::u16string_view ATitulo, std::u16string_view APergunta, std::u16string& AValor,
                               const TTextosDialogos& ATextos) {
    ExigirToolkit();
    TFormularioEntrada formulario(ATitulo, APergunta, AValor, ATextos);
    if (formulario.ExecutarModal() != mrOk) return false;
    AValor = formulario.GetValor();
    return true;
}

}  // namespace OryUtils
