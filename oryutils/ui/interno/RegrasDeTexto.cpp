#include "oryutils/ui/interno/RegrasDeTexto.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/fields/EditorDeCampo.hpp"
#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/registry_numbers/UnOryUtilsFormatacoes.hpp"
#include "oryutils/runtime/Tabela.hpp"

#include <array>

namespace OryUtils {
namespace {

using TCriar = std::unique_ptr<TField> (*)();
using TValidar = bool (*)(std::u16string_view);

template <TFieldType VTipo, auto VFormatar>
std::unique_ptr<TField> Criar() {
    auto campo = std::make_unique<TField>(VTipo);
    VFormatar(*campo);
    return campo;
}
template <TFieldType VTipo>
std::unique_ptr<TField> CriarNumero() {
    return std::make_unique<TNumericField>(VTipo);
}

void FormatarData(TField& ACampo) { FormatarCampo(ACampo, u"99/99/9999;1;_"); }
void FormatarHora(TField& ACampo) { FormatarCampo(ACampo, u"99:99:99;1;_"); }
void FormatarDataHora(TField& ACampo) { FormatarCampo(ACampo, u"99/99/9999 99:99:99;1;_"); }
void FormatarPIS(TField& ACampo) { FormatarCampo(ACampo, u"999.99999.99-9;0; "); }
void FormatarCNH(TField& ACampo) { FormatarCampo(ACampo, u"99999999999;0; "); }

bool ValidarCpf(std::u16string_view ANumero) { return ValidouCnpjCpf(tiCPF, ANumero); }
bool ValidarEmailDigitado(std::u16string_view AEndereco) { return TOryUtilsValidacoes::ValidouEmail(AEndereco); }
bool ValidarCpfCnpj(std::u16string_view ANumero) {
    return ValidouCnpjCpf(tiCPF, ANumero) || ValidouCnpjAlfanumerico(ANumero);
}

struct TRegraDeTexto {
    TTipoTexto Tipo;
    TCriar CriarCampo;
    TValidar Validou;
    std::u16string_view Recusa;
};
// clang-format off
constexpr std::array CRegras{
    TRegraDeTexto{ttLivre,    nullptr,                               nullptr,                         u""},
    TRegraDeTexto{ttInteiro,  CriarNumero<ftLargeint>,               nullptr,                         u"Número inteiro inválido. Verifique."},
    TRegraDeTexto{ttNumero,   CriarNumero<ftExtended>,               nullptr,                         u"Número inválido. Verifique."},
    TRegraDeTexto{ttData,     Criar<ftDate, FormatarData>,           nullptr,                         u"Data inválida. Verifique."},
    TRegraDeTexto{ttHora,     Criar<ftTime, FormatarHora>,           nullptr,                         u"Hora inválida. Verifique."},
    TRegraDeTexto{ttDataHora, Criar<ftDateTime, FormatarDataHora>,   nullptr,                         u"Data e hora inválidas. Verifique."},
    TRegraDeTexto{ttCPF,      Criar<ftString, FormatarCPF>,          ValidarCpf,                      u"CPF inválido. Verifique."},
    TRegraDeTexto{ttCNPJ,     Criar<ftString, FormatarCnpjAlfanumericoCampo>, ValidouCnpjAlfanumerico, u"CNPJ inválido. Verifique."},
    TRegraDeTexto{ttCpfCnpj,  Criar<ftString, FormatarCpfCnpj>,      ValidarCpfCnpj,                  u"CPF ou CNPJ inválido. Verifique."},
    TRegraDeTexto{ttCEP,      Criar<ftString, FormatarCEP>,          nullptr,                         u"CEP inválido. Verifique."},
    TRegraDeTexto{ttFone,     Criar<ftString, FormatarFoneDDD>,      nullptr,                         u"Telefone inválido. Verifique."},
    TRegraDeTexto{ttPIS,      Criar<ftString, FormatarPIS>,          ValidouPIS,                      u"PIS inválido. Verifique."},
    TRegraDeTexto{ttCEI,      Criar<ftString, FormatarCEI>,          ValidouCEI,                      u"CEI inválido. Verifique."},
    TRegraDeTexto{ttCNH,      Criar<ftString, FormatarCNH>,          ValidouCNH,                      u"CNH inválida. Verifique."},
    TRegraDeTexto{ttEmail,    nullptr,                               ValidarEmailDigitado,                    u"E-mail inválido. Verifique."},
};
// clang-format on
static_assert(CobreEnumeracao<CRegras, &TRegraDeTexto::Tipo>());

constexpr std::u16string_view CForaDaMascara = u"O texto não cabe na máscara. Verifique.";

const TRegraDeTexto& BuscarRegra(TTipoTexto ATipo) {
    const auto indice = static_cast<std::size_t>(ATipo);
    return CRegras[indice < CRegras.size() ? indice : 0];
}

/// A box without a window: what it holds is the editor's.
class TCaixaSemJanela final : public TEditorDeCampo {
public:
    explicit TCaixaSemJanela(TField& ACampo) : TEditorDeCampo(ACampo) { AoEntrar(); }

    /// ATexto in the place of what stands there. False when the field does not take it.
    bool Receber(std::u16string_view ATexto) {
        if (!AoColar(ATexto)) return false;
        Gravar();
        return GetErro().empty();
    }

protected:
    TEdicaoMascara Ler() const override { return FEdicao; }
    void Mostrar(const TEdicaoMascara& AEdicao) override { FEdicao = AEdicao; }
    bool EhSomenteLeitura() const override { return false; }
    void Bipar() override {}

private:
    TEdicaoMascara FEdicao;
};

}  // namespace

std::unique_ptr<TField> CriarCampoDoPedido(const TOryUtilsDialogsPedidoTextoIOP& AParametros) {
    const TRegraDeTexto& regra = BuscarRegra(AParametros.Tipo);
    if (regra.CriarCampo) return regra.CriarCampo();
    if (regra.Tipo != ttLivre || AParametros.Mascara.empty()) return nullptr;
    auto campo = std::make_unique<TField>(ftString);
    campo->SetEditMask(AParametros.Mascara);
    return campo;
}

TTextoConferido ConferirTexto(const TOryUtilsDialogsPedidoTextoIOP& AParametros, std::u16string_view ATexto) {
    const TRegraDeTexto& regra = BuscarRegra(AParametros.Tipo);
    const auto campo = CriarCampoDoPedido(AParametros);
    TTextoConferido conferido{.Valor = std::u16string(regra.Validou ? Aparar(ATexto) : ATexto)};
    if (Aparar(ATexto).empty()) return conferido;
    if (campo) {
        TCaixaSemJanela caixa(*campo);
        if (!caixa.Receber(ATexto)) {
            const std::u16string_view erro = caixa.GetErro().empty() ? CForaDaMascara : caixa.GetErro();
            conferido.Recusa = regra.Recusa.empty() ? erro : regra.Recusa;
            return conferido;
        }
        conferido.Valor = campo->GetTexto();
    }
    if (!conferido.Valor.empty() && regra.Validou && !regra.Validou(conferido.Valor)) conferido.Recusa = regra.Recusa;
    return conferido;
}

}  // namespace OryUtils
