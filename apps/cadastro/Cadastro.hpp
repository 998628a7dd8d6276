#pragma once

#include "oryutils/fields/Campos.hpp"
#include "oryutils/fields/EditorDeCampo.hpp"
#include "oryutils/runtime/Controle.hpp"

#include <array>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace OryUtils::Cadastro {

/// The fields of the customer, in tab order.
enum TCampo : int {
    caNome,
    caDocumento,
    caCEP,
    caFone,
    caUF,
    caIE,
    caMunicipio,
    caValor,
    caNascimento,
    CQuantidadeCampos
};

using TValores = std::array<std::u16string, CQuantidadeCampos>;

struct TDescricaoCampo {
    std::u16string_view Caption;
    /// It is chosen from these; none: it is typed.
    std::span<const std::u16string_view> Opcoes;
    /// Of Opcoes, when the window opens; -1 for none.
    int OpcaoInicial;
    /// Width of the box, in characters.
    int Largura;
    TFieldType Tipo;
    /// Gives the field its mask or its format; null where any text is typed.
    void (*Formatar)(TField& ACampo);
    /// Reports a bad value by focus, warning and EAbort; null where nothing can be wrong.
    void (*Validar)(const TObjeto* ASender, TWinControl* AControle, const TValores& AValores);
    /// The choice that its rule depends on: one may go back to it and leave a bad value. Itself for none.
    TCampo Escolha;
    /// What the pictures of the documentation show.
    std::u16string_view Exemplo;
};

/// Indexed by TCampo.
extern const std::array<TDescricaoCampo, CQuantidadeCampos> CCampos;

inline constexpr std::u16string_view CTituloCadastro = u"Cadastro de cliente";
inline constexpr std::u16string_view CCaptionSalvar = u"&Salvar";
inline constexpr std::u16string_view CCaptionFechar = u"&Fechar";

/// Lines for the value in words: enough for a thousand million.
inline constexpr int CLinhasPorExtenso = 3;

/// What the sample window does, whatever its controls: the windows of the toolkits tell what happened to theirs.
class TCadastro {
public:
    TCadastro();
    virtual ~TCadastro();
    TCadastro(const TCadastro&) = delete;
    TCadastro& operator=(const TCadastro&) = delete;

    /// Fills all boxes with a made-up customer.
    void Exemplificar();

protected:
    // What the window calls.

    /// The field that the box of ACampo is bound to; null where any text is typed or chosen.
    TField* GetCampoDeDados(std::size_t ACampo) const noexcept { return FCampos[ACampo].get(); }
    /// While a warning is up the focus goes away and comes back: that is no exit.
    bool EstahValidando() const noexcept { return FValidando; }
    /// The focus went from ACampo to AFoco (CQuantidadeCampos when that is no field): the value must hold.
    void AoSair(std::size_t ACampo, std::size_t AFoco);
    /// What stands under the value's box: the amount in words; nothing while there is none.
    std::u16string BuscarPorExtenso();
    /// The save button: every field in order, without a sender; then the user is told that all is well.
    void AoSalvar();

    // What it provides.

    virtual TWinControl& GetControle(std::size_t ACampo) = 0;
    /// Null where the box is not bound.
    virtual TEditorDeCampo* GetEditor(std::size_t ACampo) = 0;
    /// What the box shows; the chosen option of a list.
    virtual std::u16string LerCaixa(std::size_t ACampo) const = 0;
    virtual void EscreverCaixa(std::size_t ACampo, std::u16string_view ATexto) = 0;

private:
    TValores LerValores();
    void Tratar(const std::function<void()>& ATratador);

    std::array<std::unique_ptr<TField>, CQuantidadeCampos> FCampos;
    bool FValidando = false;
};

}  // namespace OryUtils::Cadastro
