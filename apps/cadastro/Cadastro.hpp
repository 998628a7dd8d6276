#pragma once

#include "oryutils/runtime/Controle.hpp"

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace OryUtils::Cadastro {

/// The fields of the customer, in tab order.
enum TCampo : int { caNome, caDocumento, caUF, caIE, caMunicipio, caValor, caNascimento, CQuantidadeCampos };

using TValores = std::array<std::u16string, CQuantidadeCampos>;
using TControles = std::array<TWinControl*, CQuantidadeCampos>;

struct TDescricaoCampo {
    std::u16string_view Caption;
    /// Chosen from the states; else typed.
    bool Lista;
    /// Width of the box, in characters.
    int Largura;
    /// Reports a bad value by focus, warning and EAbort.
    void (*Validar)(const TObjeto* ASender, TWinControl* AControle, const TValores& AValores);
};

/// Indexed by TCampo.
extern const std::array<TDescricaoCampo, CQuantidadeCampos> CCampos;
extern const std::array<std::u16string_view, 27> CUFs;

inline constexpr std::u16string_view CTituloCadastro = u"Cadastro de cliente";
inline constexpr std::u16string_view CCaptionSalvar = u"&Salvar";
inline constexpr std::u16string_view CCaptionFechar = u"&Fechar";

/// What stands under the value's box: AValor in words; nothing while it is blank or no amount.
std::u16string EscreverPorExtenso(std::u16string_view AValor);

/// The save button: every field in order, without a sender; then the user is told that all is well. EAbort at the
/// first field that does not hold.
void Salvar(const TValores& AValores, const TControles& AControles);

}  // namespace OryUtils::Cadastro
