// A line of text, or several.
#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/ui/interno/FormularioPedido.hpp"
#include "oryutils/ui/interno/Pedidos.hpp"
#include "oryutils/ui/interno/RegrasDeTexto.hpp"

namespace OryUtils {
namespace {

constexpr int CLinhas = 8;
constexpr std::uint16_t CTeclaEnter = 13;

class TFormularioTexto final : public TFormularioPedido {
public:
    TFormularioTexto(const TOryUtilsDialogsPedidoTextoIOP& AParametros, std::u16string_view AValor,
                     const TTextosDialogos& ATextos)
        : TFormularioPedido(AParametros.Titulo, AParametros.Pergunta, ATextos),
          FParametros(AParametros),
          FCampo(CriarCampoDoPedido(AParametros)) {
        FPartes.Edicao = &Adicionar<TCaixaEdicao>();
        FPartes.Edicao->SetNome(u"Valor");
        FPartes.Edicao->SetSenha(AParametros.Senha);
        FPartes.Edicao->SetTexto(BuscarTextoProposto(AValor));
        if (FCampo && !AParametros.Senha) FPartes.Edicao->SetCampo(*FCampo);
        FPartes.Edicao->SelecionarTudo();
        SetControleAtivo(FPartes.Edicao);
        Concluir();
    }

    const std::u16string& GetValor() const { return FValor; }

protected:
    void Conferir() override {
        TTextoConferido conferido = ConferirTexto(FParametros, FPartes.Edicao->GetTexto());
        if (conferido.Recusa.empty() && FParametros.Obrigatorio && Aparar(conferido.Valor).empty())
            conferido.Recusa = FTextos.Buscar(tdPreenchimento);
        if (conferido.Recusa.empty()) FParametros.OnConferir(conferido.Valor, conferido.Recusa);
        if (!conferido.Recusa.empty()) Recusar(*FPartes.Edicao, conferido.Recusa);
        FValor = conferido.Valor;
    }

private:
    std::u16string BuscarTextoProposto(std::u16string_view AValor) {
        if (!FCampo) return std::u16string(AValor);
        const TTextoConferido conferido = ConferirTexto(FParametros, AValor);
        if (conferido.Recusa.empty()) FCampo->SetTexto(conferido.Valor);
        return FCampo->GetTextoExibido();
    }

    const TOryUtilsDialogsPedidoTextoIOP FParametros;
    const std::unique_ptr<TField> FCampo;
    std::u16string FValor;
};

class TFormularioLinhas final : public TFormularioPedido {
public:
    TFormularioLinhas(const TOryUtilsDialogsPedidoLinhasIOP& AParametros, std::u16string_view AValor,
                      const TTextosDialogos& ATextos)
        : TFormularioPedido(AParametros.Titulo, AParametros.Pergunta, ATextos),
          FObrigatorio(AParametros.Obrigatorio),
          FMemorando(Adicionar<TMemorando>()) {
        FMemorando.SetNome(u"Valor");
        FMemorando.SetTexto(AValor);
        FPartes.Corpo = &FMemorando;
        FPartes.LinhasDoCorpo = CLinhas;
        SetControleAtivo(&FMemorando);
        OnKeyDown = TEvento<TObjeto*, TTecla&>::De<&TFormularioLinhas::AoTeclar>(*this);
        Concluir();
    }

    std::u16string GetValor() const {
        std::u16string valor;
        for (const char16_t c : FMemorando.GetTexto())
            if (c != u'\r') valor += c == u'\n' ? u"\r\n" : std::u16string(1, c);
        return valor;
    }

protected:
    void Conferir() override {
        if (FObrigatorio && Aparar(FMemorando.GetTexto()).empty()) Recusar(FMemorando, FTextos.Buscar(tdPreenchimento));
    }

private:
    void AoTeclar(TObjeto* ASender, TTecla& ATecla) {
        if (ATecla.Codigo != CTeclaEnter || !ATecla.Ctrl || ATecla.Alt || ATecla.Shift) return;
        ATecla.Tratada = true;
        Confirmar(ASender);
    }

    const bool FObrigatorio;
    TMemorando& FMemorando;
};

}  // namespace

bool ExecutarPedidoTexto(const TOryUtilsDialogsPedidoTextoIOP& AParametros, std::u16string& AValor,
                         const TTextosDialogos& ATextos) {
    TFormularioTexto formulario(AParametros, AValor, ATextos);
    if (formulario.ExecutarModal() != mrOk) return false;
    AValor = formulario.GetValor();
    return true;
}

bool ExecutarPedidoLinhas(const TOryUtilsDialogsPedidoLinhasIOP& AParametros, std::u16string& AValor,
                          const TTextosDialogos& ATextos) {
    TFormularioLinhas formulario(AParametros, AValor, ATextos);
    if (formulario.ExecutarModal() != mrOk) return false;
    AValor = formulario.GetValor();
    return true;
}

}  // namespace OryUtils
