#include "oryutils/fields/EditorDeCampo.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/fields/interno/NumeroDigitado.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Ligado.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

[[noreturn]] void RecusarTexto(std::u16string_view ATexto, std::u16string_view AMotivo) {
    throw EConvertError(u"'" + std::u16string(ATexto) + u"' " + std::u16string(AMotivo));
}

}  // namespace

TEditorDeCampo::TEditorDeCampo(TField& ACampo)
    : FCampo(ACampo),
      FFormatos(ControladorFormatos().GetFormatos()),
      FMascara(ACampo.GetMascaraDoTexto(u"", FFormatos)),
      FAoEntrar(ACampo.GetValor()) {
    ControladorFormatos().AdicionarOuvinte(TEvento<>::De<&TEditorDeCampo::AoMudarFormatos>(*this));
    FCampo.AdicionarOuvinte(TEvento<>::De<&TEditorDeCampo::AoMudarCampo>(*this));
}

TEditorDeCampo::~TEditorDeCampo() {
    FCampo.RemoverOuvinte(TEvento<>::De<&TEditorDeCampo::AoMudarCampo>(*this));
    ControladorFormatos().RemoverOuvinte(TEvento<>::De<&TEditorDeCampo::AoMudarFormatos>(*this));
}

// What the box shows

void TEditorDeCampo::Atualizar() {
    FFormatos = ControladorFormatos().GetFormatos();
    FErro.clear();
    FModificado = false;
    if (FTemFoco) return MostrarParaEditar();
    const std::u16string texto = FCampo.GetTextoExibido(FFormatos);
    static_cast<void>(PorNaMascara(texto));  // the mask that a text written by the program will meet
    FFiel = true;
    FNaEntrada.reset();
    Mostrar({texto, 0, 0});
}

void TEditorDeCampo::MostrarParaEditar() {
    TEdicaoMascara edicao{PorNaMascara(FCampo.GetTextoDeEdicao(FFormatos)), 0, 0};
    edicao.Cursor = edicao.Texto.size();  // all selected: typing replaces
    Mostrar(edicao);
    FNaEntrada = Ler().Texto;
    FFiel = FNaEntrada == edicao.Texto;
}

/// ATexto as it is edited, in the mask that is right for it; as it stands where that mask cannot show it whole.
std::u16string TEditorDeCampo::PorNaMascara(std::u16string_view ATexto) {
    FMascara = FCampo.GetMascaraDoTexto(ATexto, FFormatos);
    FEmBruto = false;
    if (FMascara.EstahVazia()) return std::u16string(ATexto);
    std::u16string edicao = FMascara.ParaEdicao(ATexto);
    if (FMascara.ParaValor(edicao) == ATexto) return edicao;
    if (const auto lido = FMascara.LerTexto(ATexto)) return *lido;
    FMascara = TMascara();
    FEmBruto = true;
    return std::u16string(ATexto);
}

void TEditorDeCampo::AoMudarFormatos() {
    if (!FModificado) Atualizar();
}

void TEditorDeCampo::AoMudarCampo() {
    if (FGravando) return;
    FAoEntrar = FCampo.GetValor();
    FNaEntrada.reset();
    if (!FModificado) Atualizar();
}

// The focus

void TEditorDeCampo::AoEntrar() {
    if (FTemFoco) return;  // back from its own menu, or from another window
    FTemFoco = true;
    FAoEntrar = FCampo.GetValor();
    if (!FModificado) Atualizar();
}

void TEditorDeCampo::AoSair() {
    if (!FTemFoco) return;
    FTemFoco = false;
    if (FModificado && !EhSomenteLeitura() && !Armazenar()) return Recusar();
    Atualizar();
}

void TEditorDeCampo::AoSuspender() {
    if (!FModificado || EhSomenteLeitura()) return;
    const std::u16string erro = FErro;
    if (!Armazenar()) FErro = erro;
}

// From the box to the field

void TEditorDeCampo::Gravar() {
    if (!FModificado || EhSomenteLeitura() || !Armazenar()) return;
    const TEdicaoMascara antes = Ler();
    Atualizar();
    if (!FTemFoco) return;
    TEdicaoMascara depois = Ler();
    depois.Cursor = std::min(antes.Cursor, depois.Texto.size());
    depois.Ancora = std::min(antes.Ancora, depois.Texto.size());
    Mostrar(depois);
}

bool TEditorDeCampo::Desfazer() {
    const bool gravou = !(FCampo.GetValor() == FAoEntrar);
    if (!FTemFoco || (!FModificado && !gravou)) return false;
    const Interno::TLigado gravando(FGravando);
    if (gravou) FCampo.SetValor(FAoEntrar);
    Atualizar();
    return true;
}

/// True when the field took what the box holds.
bool TEditorDeCampo::Armazenar() {
    const Interno::TLigado gravando(FGravando);
    try {
        FCampo.SetTexto(LerValor(Ler().Texto), FFormatos);
    } catch (const Exception& erro) {
        FErro = erro.GetMensagem();
        return false;
    }
    FErro.clear();
    FModificado = false;
    FNaEntrada.reset();
    return true;
}

/// The text of the box as the field reads it. Raises EConvertError for one that may not be taken.
std::u16string TEditorDeCampo::LerValor(std::u16string_view ATexto) const {
    if (!FFiel) throw EConvertError(u"O valor tem caracteres que a caixa não mostra. Nada foi gravado.");
    if (FEmBruto && !EhCampoDeData(FCampo.GetTipo())) RecusarTexto(ATexto, u"não cabe na máscara do campo");
    if (FMascara.EstahVazia()) {
        if (!EhNumero() || Aparar(ATexto).empty()) return std::u16string(ATexto);
        if (const auto numero = LerNumero(ATexto)) return *numero;
        RecusarTexto(ATexto, EhCampoInteiro(FCampo.GetTipo()) ? u"não é um valor inteiro válido"
                                                              : u"não é um valor de ponto flutuante válido");
    }
    const std::size_t preenchidos = FMascara.GetConteudo(ATexto).size();
    const bool incompleto = FMascara.Examinar(ATexto).Falha == fmIncompleto ||
                            (FCampo.GetSomenteCompleto() && preenchidos < FMascara.GetCampos());
    if (preenchidos > 0 && incompleto) throw EConvertError(u"Preenchimento incompleto. Verifique.");
    if (preenchidos == 0 || !EhCampoDeData(FCampo.GetTipo())) return FMascara.ParaValor(ATexto);
    // A date is read with its separators, whether the mask stores them or not; minutes and seconds may be missing.
    std::u16string texto = FMascara.SemVazios(ATexto);
    while (texto.ends_with(FFormatos.TimeSeparator)) texto.pop_back();
    return texto;
}

/// A number that the field holds, as plain text; decimals of a whole number are zeros.
std::optional<std::u16string> TEditorDeCampo::LerNumero(std::u16string_view ATexto) const {
    auto numero = Interno::LerNumeroDigitado(ATexto, FFormatos, MostraPercentual());
    if (!numero || !EhCampoInteiro(FCampo.GetTipo())) return numero;
    const std::size_t decimal = numero->find(FFormatos.DecimalSeparator);
    if (decimal == numero->npos) return numero;
    if (numero->find_first_not_of(u'0', decimal + 1) != numero->npos) return std::nullopt;
    return numero->substr(0, decimal);
}

bool TEditorDeCampo::MostraPercentual() const {
    const auto* campo = dynamic_cast<const TNumericField*>(&FCampo);
    return campo && campo->GetDisplayFormat().find(u'%') != std::u16string::npos;
}

// Keys and texts

void TEditorDeCampo::Recusar() {
    Bipar();
    OnRecusar(*this);
}

bool TEditorDeCampo::Trocar(const TEdicaoMascara& AAntes, const TEdicaoMascara& ADepois) {
    if (ADepois.Recusada) {
        Recusar();
        return false;
    }
    if (ADepois.Texto != AAntes.Texto) AnotarMudanca(ADepois.Texto);
    if (MostrarInteiro(ADepois)) return true;
    AnotarMudanca(AAntes.Texto);
    if (EhPorConteudo()) FMascara = FCampo.GetMascaraDoTexto(AAntes.Texto, FFormatos);
    Mostrar(AAntes);
    Recusar();
    return false;
}

/// What the box now has is a change, unless it is what stood there on entering.
void TEditorDeCampo::AnotarMudanca(std::u16string_view ATexto) {
    FModificado = FNaEntrada != ATexto;
    if (!FModificado) FErro.clear();
}

/// False when the box, which the host has limited, cuts the text that was typed.
bool TEditorDeCampo::MostrarInteiro(const TEdicaoMascara& AEdicao) {
    Mostrar(AEdicao);
    return !FModificado || Ler().Texto.size() >= AEdicao.Texto.size();
}

bool TEditorDeCampo::AoDigitar(char16_t ACaractere) {
    const TEdicaoMascara antes = Ler();
    if (EhNumero() && FMascara.EstahVazia()) return Trocar(antes, DigitarNumero(antes, ACaractere));
    return Trocar(antes,
                  EhPorConteudo() ? TrocarConteudo(antes, {&ACaractere, 1}) : FMascara.Digitar(antes, ACaractere));
}

bool TEditorDeCampo::AoTeclarDecimal() { return AoDigitar(EhNumero() ? FFormatos.DecimalSeparator : u'.'); }

bool TEditorDeCampo::AoColar(std::u16string_view ATexto) {
    const TEdicaoMascara antes = Ler();
    if (EhNumero() && FMascara.EstahVazia()) return Trocar(antes, ColarNumero(antes, ATexto));
    return Trocar(antes, EhPorConteudo() ? TrocarConteudo(antes, ATexto) : FMascara.Colar(antes, ATexto));
}

void TEditorDeCampo::AoTeclar(TTeclaMascara ATecla) {
    const TEdicaoMascara antes = Ler();
    const bool apaga = ATecla == tmApagar || ATecla == tmExcluir;
    Trocar(antes, apaga && EhPorConteudo() ? ApagarConteudo(antes, ATecla) : FMascara.Teclar(antes, ATecla));
}

void TEditorDeCampo::AoMudarTexto() {
    if (EhSomenteLeitura()) return;
    const TEdicaoMascara lida = Ler();
    AnotarMudanca(lida.Texto);
    TEdicaoMascara edicao{PorNaMascara(lida.Texto), lida.Cursor, lida.Ancora};
    if (edicao.Texto == lida.Texto) return;
    edicao.Cursor = std::min(edicao.Cursor, edicao.Texto.size());
    edicao.Ancora = std::min(edicao.Ancora, edicao.Texto.size());
    if (!MostrarInteiro(edicao)) FFiel = false;
}

/// The selection as characters of the content.
TEditorDeCampo::TFaixa TEditorDeCampo::BuscarSelecao(const TEdicaoMascara& AEdicao) const {
    const auto [inicio, fim] = std::minmax(AEdicao.Cursor, AEdicao.Ancora);
    return {FMascara.GetConteudo(AEdicao.Texto, inicio).size(), FMascara.GetConteudo(AEdicao.Texto, fim).size()};
}

TEdicaoMascara TEditorDeCampo::TrocarConteudo(const TEdicaoMascara& AAntes, std::u16string_view AIncluido) {
    TEdicaoMascara recusada = AAntes;
    recusada.Recusada = true;
    const TFaixa selecao = BuscarSelecao(AAntes);
    std::u16string texto = FMascara.GetConteudo(AAntes.Texto);
    texto.replace(selecao.Inicio, selecao.Fim - selecao.Inicio, AIncluido);
    const auto conteudo = FCampo.GetMascaraDoTexto(texto, FFormatos).LerConteudo(texto);
    if (!conteudo) return recusada;
    const std::size_t restantes = FMascara.GetConteudo(AAntes.Texto).size() - selecao.Fim;
    const std::size_t incluidos = conteudo->size() - restantes - selecao.Inicio;
    if (incluidos == 0) return AAntes;  // marks alone
    return Dispor(*conteudo, selecao.Inicio + incluidos).value_or(recusada);
}

TEdicaoMascara TEditorDeCampo::ApagarConteudo(const TEdicaoMascara& AAntes, TTeclaMascara ATecla) {
    TFaixa selecao = BuscarSelecao(AAntes);
    std::u16string conteudo = FMascara.GetConteudo(AAntes.Texto);
    if (AAntes.Cursor == AAntes.Ancora) {
        if (ATecla == tmApagar && selecao.Inicio > 0) --selecao.Inicio;
        if (ATecla == tmExcluir && selecao.Fim < conteudo.size()) ++selecao.Fim;
    }
    conteudo.erase(selecao.Inicio, selecao.Fim - selecao.Inicio);
    return Dispor(conteudo, selecao.Inicio).value_or(AAntes);
}

/// The edit with AConteudo laid out in the mask that is right for it, the caret behind its first AQuantos characters.
std::optional<TEdicaoMascara> TEditorDeCampo::Dispor(std::u16string_view AConteudo, std::size_t AQuantos) {
    TMascara mascara = FCampo.GetMascaraDoTexto(AConteudo, FFormatos);
    const auto texto = mascara.Dispor(AConteudo);
    if (!texto) return std::nullopt;
    FMascara = std::move(mascara);
    const std::size_t cursor = FMascara.GetCursorDepoisDe(*texto, AQuantos);
    return TEdicaoMascara{*texto, cursor, cursor};
}

TEdicaoMascara TEditorDeCampo::DigitarNumero(const TEdicaoMascara& AAntes, char16_t ACaractere) const {
    const std::size_t inicio = std::min(AAntes.Cursor, AAntes.Ancora);
    const std::size_t menos = AAntes.Texto.find(u'-');
    const bool sinal = ACaractere == u'-' && inicio == 0 &&
                       (menos == AAntes.Texto.npos || menos < std::max(AAntes.Cursor, AAntes.Ancora));
    const bool marca = ACaractere == u'.' || ACaractere == u',' || ACaractere == FFormatos.DecimalSeparator ||
                       ACaractere == FFormatos.ThousandSeparator || (ACaractere == u'%' && MostraPercentual());
    if (EhDigito(ACaractere) || marca || sinal) return TMascara().Colar(AAntes, {&ACaractere, 1});
    TEdicaoMascara recusada = AAntes;
    recusada.Recusada = true;
    return recusada;
}

/// A number pasted over the selection, as it is read.
TEdicaoMascara TEditorDeCampo::ColarNumero(const TEdicaoMascara& AAntes, std::u16string_view ATexto) const {
    const std::size_t restantes = AAntes.Texto.size() - std::max(AAntes.Cursor, AAntes.Ancora);
    const auto numero = LerNumero(TMascara().Colar(AAntes, ATexto).Texto);
    TEdicaoMascara depois = AAntes;
    if (!numero) {
        depois.Recusada = true;
        return depois;
    }
    depois.Texto = *numero;
    depois.Cursor = depois.Ancora = numero->size() - std::min(restantes, numero->size());
    return depois;
}

}  // namespace OryUtils
