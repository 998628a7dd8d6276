#include "oryutils/fields/EditorDeCampo.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <algorithm>

namespace OryUtils {

TEditorDeCampo::TEditorDeCampo(TField& ACampo) : FCampo(ACampo) {
    LerMascara();
    ControladorFormatos().AdicionarOuvinte(TEvento<>::De<&TEditorDeCampo::AoMudarFormatos>(*this));
}

TEditorDeCampo::~TEditorDeCampo() {
    ControladorFormatos().RemoverOuvinte(TEvento<>::De<&TEditorDeCampo::AoMudarFormatos>(*this));
}

void TEditorDeCampo::LerMascara() { FMascara = TMascara(FCampo.GetEditMask(), ControladorFormatos().GetFormatos()); }

void TEditorDeCampo::Atualizar() {
    LerMascara();
    FErro.clear();
    if (!FTemFoco) return Mostrar({FCampo.GetTextoExibido(), 0, 0});
    TEdicaoMascara edicao{FMascara.ParaEdicao(FCampo.GetTexto()), 0, 0};
    edicao.Cursor = edicao.Texto.size();  // all selected: typing replaces
    Mostrar(edicao);
}

void TEditorDeCampo::AoMudarFormatos() {
    // A text that the field refused is what the user must still correct.
    if (FErro.empty() && !FTemFoco) Atualizar();
}

void TEditorDeCampo::AoEntrar() {
    if (FTemFoco) return;  // back from its own menu
    FTemFoco = true;
    if (FErro.empty()) Atualizar();
}

void TEditorDeCampo::AoSair(std::u16string_view ATexto) {
    FTemFoco = false;
    try {
        FCampo.SetTexto(FMascara.ParaValor(ATexto));
        FErro.clear();
    } catch (const Exception& erro) {
        FErro = erro.GetMensagem();
        return Mostrar({FMascara.Sair(ATexto), 0, 0});
    }
    Mostrar({FCampo.GetTextoExibido(), 0, 0});
}

void TEditorDeCampo::AoGravar(std::u16string_view ATexto) {
    const bool tinhaFoco = FTemFoco;
    // What is displayed is not what is edited: the field has it already.
    if (!tinhaFoco && FErro.empty() && ATexto == FCampo.GetTextoExibido()) return;
    AoSair(ATexto);
    if (tinhaFoco) AoEntrar();
}

/// Of ATexto what may go where the selection of AEdicao stands in a number.
std::u16string TEditorDeCampo::FiltrarNumero(const TEdicaoMascara& AEdicao, std::u16string_view ATexto,
                                             bool AColado) const {
    const TFormatSettings& formatos = ControladorFormatos().GetFormatos();
    const std::size_t tamanho = AEdicao.Texto.size();
    const std::size_t inicio = std::min({AEdicao.Cursor, AEdicao.Ancora, tamanho});
    const std::size_t fim = std::min(std::max(AEdicao.Cursor, AEdicao.Ancora), tamanho);
    const std::u16string resto = AEdicao.Texto.substr(0, inicio) + AEdicao.Texto.substr(fim);
    bool temSeparador = EhCampoInteiro(FCampo.GetTipo()) || resto.find(formatos.DecimalSeparator) != resto.npos;
    const bool podeSinal = inicio == 0 && resto.find(u'-') == resto.npos;
    std::u16string aceito;
    for (const char16_t c : ATexto) {
        const bool separa = c == formatos.DecimalSeparator || (!AColado && (c == u',' || c == u'.'));
        if (EhDigito(c)) {
            aceito += c;
        } else if (separa && !temSeparador) {
            temSeparador = true;
            aceito += formatos.DecimalSeparator;
        } else if (c == u'-' && podeSinal && aceito.empty()) {
            aceito += c;
        }
    }
    return aceito;
}

TEdicaoMascara TEditorDeCampo::Digitar(const TEdicaoMascara& AEdicao, char16_t ACaractere) const {
    if (!EhNumero()) return FMascara.Digitar(AEdicao, ACaractere);
    const std::u16string aceito = FiltrarNumero(AEdicao, {&ACaractere, 1}, false);
    return aceito.empty() ? FMascara.Ajustar(AEdicao) : FMascara.Colar(AEdicao, aceito);
}

TEdicaoMascara TEditorDeCampo::Colar(const TEdicaoMascara& AEdicao, std::u16string_view ATexto) const {
    if (EhNumero()) return FMascara.Colar(Ajustar(AEdicao), FiltrarNumero(AEdicao, ATexto, true));
    // A box has one line.
    return FMascara.Colar(Ajustar(AEdicao),
                          FMascara.EstahVazia() ? ATexto.substr(0, ATexto.find_first_of(u"\r\n")) : ATexto);
}

TEdicaoMascara TEditorDeCampo::Teclar(const TEdicaoMascara& AEdicao, TTeclaMascara ATecla) const {
    return FMascara.Teclar(AEdicao, ATecla);
}

}  // namespace OryUtils
