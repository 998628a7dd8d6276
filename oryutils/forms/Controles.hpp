#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/runtime/Controle.hpp"
#include "oryutils/runtime/Evento.hpp"
#include "oryutils/runtime/Formatos.hpp"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

// A change of a class or of an enumeration in this header counts CVersaoDoModelo up: see forms/interno/FabricaQt.hpp.
namespace OryUtils {

class TField;
class TFormulario;

/// Position inside the form's client area, in pixels.
struct TRetangulo {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    bool operator==(const TRetangulo&) const = default;
};

struct TTamanho {
    int Largura = 0;
    int Altura = 0;
    bool operator==(const TTamanho&) const = default;
};

/// Which property of a control or form has changed: the toolkit brings that part of the native side up to date.
enum TMudanca : unsigned {
    mdPosicao = 1,   ///< rectangle
    mdTexto = 2,     ///< caption or text
    mdEstado = 4,    ///< visible, enabled, read-only
    mdItens = 8,     ///< options of a radio group, items of a list
    mdSelecao = 16,  ///< chosen options or items, checked state, selected text
    mdFoco = 32,     ///< active control
};

enum TTipoControle : int {
    tcRotulo,
    tcBotao,
    tcGrupoOpcoes,
    tcCaixaChecagem,
    tcCaixaEdicao,
    tcMemorando,
    tcIcone,
    tcProgresso,
    tcListaEscolha,
};

/// Modal results: what a button answers and a modal run returns. 0 keeps the form open.
enum TModalResult : int {
    mrNone = 0,
    mrOk = 1,
    mrCancel = 2,
    mrAbort = 3,
    mrRetry = 4,
    mrIgnore = 5,
    mrYes = 6,
    mrNo = 7,
    mrAll = 8,
    mrNoToAll = 9,
    mrYesToAll = 10,
    mrClose = 11,
};

/// A caption as the user reads it: the "&" that marks a letter goes, "&&" becomes one "&". "Si&m p/ Todos" is
/// "Sim p/ Todos".
ORY_API std::u16string RemoverAtalho(std::u16string_view ACaption);
/// The letter that "&" marks in ACaption, as written there; 0 when it marks none.
ORY_API char16_t BuscarLetraAtalho(std::u16string_view ACaption) noexcept;

/// Something on a form. The form owns its controls; they are realised, and tabbed through, in creation order,
/// unless the form puts one elsewhere (ColocarAntes).
/// Setters work before, while and after the form is shown: a shown form is brought up to date at once.
class ORY_API TControleFormulario : public TWinControl {
public:
    ~TControleFormulario() override;
    TControleFormulario(const TControleFormulario&) = delete;
    TControleFormulario& operator=(const TControleFormulario&) = delete;

    TTipoControle GetTipo() const noexcept { return FTipo; }
    TFormulario& GetFormulario() const noexcept { return FFormulario; }

    /// Name by which hosts and tests find it ("Message"); need not be unique.
    const std::u16string& GetNome() const noexcept { return FNome; }
    void SetNome(std::u16string_view ANome) { FNome = ANome; }

    const TRetangulo& GetRetangulo() const noexcept { return FRetangulo; }
    void SetRetangulo(const TRetangulo& ARetangulo);
    int GetLeft() const noexcept { return FRetangulo.Left; }
    int GetTop() const noexcept { return FRetangulo.Top; }
    int GetWidth() const noexcept { return FRetangulo.Width; }
    int GetHeight() const noexcept { return FRetangulo.Height; }
    void SetLeft(int AValor);
    void SetTop(int AValor);
    void SetWidth(int AValor);
    void SetHeight(int AValor);

    /// Caption of a label, button, group or check box ("&" marks the Alt letter); text of an edit or memo.
    const std::u16string& GetTexto() const noexcept { return FTexto; }
    void SetTexto(std::u16string_view ATexto);

    bool GetVisivel() const noexcept { return FVisivel; }
    void SetVisivel(bool AVisivel);
    bool GetHabilitado() const noexcept { return FHabilitado; }
    void SetHabilitado(bool AHabilitado);

    bool PodeReceberFoco() const override;
    void ReceberFoco() override;

    /// What the user did, told by the toolkit: the new text, without telling the toolkit back.
    void AceitarTexto(std::u16string_view ATexto) { FTexto = ATexto; }

protected:
    TControleFormulario(TFormulario& AFormulario, TTipoControle ATipo) : FFormulario(AFormulario), FTipo(ATipo) {}
    /// Brings the native side up to date when the form is shown.
    void Avisar(TMudanca AMudanca);

private:
    TFormulario& FFormulario;
    TTipoControle FTipo;
    std::u16string FNome;
    std::u16string FTexto;
    TRetangulo FRetangulo;
    bool FVisivel = true;
    bool FHabilitado = true;
};

/// Text without interaction; wraps at its width when SetQuebraLinha. Its "&" is shown as it is.
class ORY_API TRotulo final : public TControleFormulario {
public:
    explicit TRotulo(TFormulario& AFormulario) : TControleFormulario(AFormulario, tcRotulo) {}
    bool GetQuebraLinha() const noexcept { return FQuebraLinha; }
    void SetQuebraLinha(bool AQuebra);
    bool PodeReceberFoco() const override { return false; }

private:
    bool FQuebraLinha = false;
};

/// System icon of a message, by the system's number (32513 stop, 32514 question, 32515 exclamation, 32516 information).
class ORY_API TIcone final : public TControleFormulario {
public:
    explicit TIcone(TFormulario& AFormulario) : TControleFormulario(AFormulario, tcIcone) {}
    int GetIdIcone() const noexcept { return FIdIcone; }
    void SetIdIcone(int AId);
    bool PodeReceberFoco() const override { return false; }

private:
    int FIdIcone = 0;
};

/// Push button. Pressed, it fires OnClick and then, when its modal result is not mrNone, ends the modal run with it.
class ORY_API TBotao final : public TControleFormulario {
public:
    explicit TBotao(TFormulario& AFormulario) : TControleFormulario(AFormulario, tcBotao) {}
    int GetModalResult() const noexcept { return FModalResult; }
    void SetModalResult(int AResultado) { FModalResult = AResultado; }
    /// Pressed by Enter while no other button has the focus.
    bool GetPadrao() const noexcept { return FPadrao; }
    void SetPadrao(bool APadrao);
    /// Pressed by Esc.
    bool GetCancelar() const noexcept { return FCancelar; }
    void SetCancelar(bool ACancelar) { FCancelar = ACancelar; }
    /// Shown behind the caption without being part of it: "(5)" for the seconds that are left.
    const std::u16string& GetComplemento() const noexcept { return FComplemento; }
    void SetComplemento(std::u16string_view AComplemento);
    /// What stands on the button: caption, blank, complement.
    std::u16string GetLegenda() const;

    TEvento<TObjeto*> OnClick;

    /// What a click does; toolkits and tests call it.
    void Clicar();

private:
    int FModalResult = mrNone;
    bool FPadrao = false;
    bool FCancelar = false;
    std::u16string FComplemento;
};

/// Group box with one radio button for each item, in one column.
class ORY_API TGrupoOpcoes final : public TControleFormulario {
public:
    explicit TGrupoOpcoes(TFormulario& AFormulario) : TControleFormulario(AFormulario, tcGrupoOpcoes) {}
    const std::vector<std::u16string>& GetItens() const noexcept { return FItens; }
    void AdicionarItem(std::u16string_view AItem);
    /// Chosen item from 0; -1 for none. A value outside the items chooses none.
    int GetIndice() const noexcept { return FIndice; }
    void SetIndice(int AIndice);
    bool GetQuebraLinha() const noexcept { return FQuebraLinha; }
    void SetQuebraLinha(bool AQuebra) { FQuebraLinha = AQuebra; }
    void AceitarIndice(int AIndice) { FIndice = AIndice; }

private:
    std::vector<std::u16string> FItens;
    int FIndice = -1;
    bool FQuebraLinha = false;
};

class ORY_API TCaixaChecagem final : public TControleFormulario {
public:
    explicit TCaixaChecagem(TFormulario& AFormulario) : TControleFormulario(AFormulario, tcCaixaChecagem) {}
    bool GetMarcada() const noexcept { return FMarcada; }
    void SetMarcada(bool AMarcada);
    void AceitarMarcada(bool AMarcada) { FMarcada = AMarcada; }

private:
    bool FMarcada = false;
};

/// One line of text that the user edits.
class ORY_API TCaixaEdicao final : public TControleFormulario {
public:
    explicit TCaixaEdicao(TFormulario& AFormulario) : TControleFormulario(AFormulario, tcCaixaEdicao) {}
    /// Selects the whole text (when shown, or as soon as it is).
    void SelecionarTudo();
    bool GetSelecionarTudo() const noexcept { return FSelecionarTudo; }
    // These three are set before the form is shown.
    /// What is typed shows as dots and cannot be copied.
    bool GetSenha() const noexcept { return FSenha; }
    void SetSenha(bool ASenha) noexcept { FSenha = ASenha; }
    /// The box edits as one that is bound to ACampo does (see TEditorDeCampo), in its mask or as a number. ACampo must
    /// outlive the form. The text of the box remains what stands in it; a conversation takes any.
    TField* GetCampo() const noexcept { return FCampo; }
    void SetCampo(TField& ACampo);
    /// The formats of the program whose form this is; a toolkit loaded at run time may have others of its own.
    const TFormatSettings& GetFormatos() const noexcept { return *FFormatos; }
    /// The box helps with another control and is no question of its own: a conversation leaves it out.
    bool GetAuxiliar() const noexcept { return FAuxiliar; }
    void SetAuxiliar(bool AAuxiliar) noexcept { FAuxiliar = AAuxiliar; }
    /// Fired after the user changed the text.
    TEvento<TObjeto*> OnMudar;
    /// Fired when the focus leaves the box. EAbort raised here is swallowed.
    TEvento<TObjeto*> OnSair;

private:
    bool FSelecionarTudo = false;
    bool FSenha = false;
    bool FAuxiliar = false;
    TField* FCampo = nullptr;
    const TFormatSettings* FFormatos = nullptr;
};

/// Lines of text with a vertical scroll bar.
class ORY_API TMemorando final : public TControleFormulario {
public:
    explicit TMemorando(TFormulario& AFormulario) : TControleFormulario(AFormulario, tcMemorando) {}
    bool GetSomenteLeitura() const noexcept { return FSomenteLeitura; }
    void SetSomenteLeitura(bool ASomenteLeitura);

private:
    bool FSomenteLeitura = false;
};

/// How far a work is, as a bar. Its text is not drawn: it says what the bar tells of to screen readers, and on a
/// terminal.
class ORY_API TProgresso final : public TControleFormulario {
public:
    explicit TProgresso(TFormulario& AFormulario) : TControleFormulario(AFormulario, tcProgresso) {}
    /// 0 to 100; below 0 nobody knows the share, and the bar only shows that the work goes on.
    double GetPercentual() const noexcept { return FPercentual; }
    /// Above 100 counts as 100, what is no number as unknown.
    void SetPercentual(double APercentual);
    bool PodeReceberFoco() const override { return false; }

private:
    double FPercentual = -1;
};

/// Items in one column that scrolls, of which the user chooses one, or several (SetVarios).
class ORY_API TListaEscolha final : public TControleFormulario {
public:
    explicit TListaEscolha(TFormulario& AFormulario) : TControleFormulario(AFormulario, tcListaEscolha) {}
    const std::vector<std::u16string>& GetItens() const noexcept { return FItens; }
    /// Other items, none of them chosen.
    void SetItens(std::vector<std::u16string> AItens);
    /// Set before the form is shown. The space bar and a click choose and let go each item by itself.
    bool GetVarios() const noexcept { return FVarios; }
    void SetVarios(bool AVarios) noexcept { FVarios = AVarios; }
    /// Chosen items from 0, ascending. Numbers outside the items are dropped, and all but the first where one is
    /// chosen.
    const std::vector<int>& GetEscolhidos() const noexcept { return FEscolhidos; }
    void SetEscolhidos(std::vector<int> AEscolhidos);
    void AceitarEscolhidos(std::vector<int> AEscolhidos) { FEscolhidos = std::move(AEscolhidos); }
    /// Fired after the user chose.
    TEvento<TObjeto*> OnEscolher;
    TEvento<TObjeto*> OnDuploClique;

private:
    std::vector<std::u16string> FItens;
    std::vector<int> FEscolhidos;
    bool FVarios = false;
};

}  // namespace OryUtils
