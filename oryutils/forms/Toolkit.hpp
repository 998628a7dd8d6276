#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/forms/Formulario.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// A change of a class or of an enumeration in this header counts CVersaoDoModelo up: see forms/interno/FabricaQt.hpp.
namespace OryUtils {

/// A line of a file picker's filter: "Textos", "*.txt" (several masks with ";").
struct TFiltroArquivo {
    std::u16string Descricao;
    std::u16string Mascara;
    bool operator==(const TFiltroArquivo&) const = default;
};

/// What a picker answers: a file that exists, several of them, a file to write, a folder that exists.
enum TSelecaoDeCaminho : int { scAbrir, scAbrirVarios, scSalvar, scPasta };

/// What a picker is asked for.
struct TPedidoDeCaminho {
    TSelecaoDeCaminho Selecao = scAbrir;
    std::u16string Titulo{};          ///< empty: the picker's own
    std::u16string PastaInicial{};    ///< empty: the picker's choice
    std::u16string NomeSugerido{};    ///< of a file to write: a name without a folder
    std::u16string ExtensaoPadrao{};  ///< put behind a name to write that has none; without the point
    std::vector<TFiltroArquivo> Filtros{};
    bool operator==(const TPedidoDeCaminho&) const = default;
};

enum TCursorTela : int { ctNormal, ctAmpulheta };

/// What became of a request: done, the window does not exist, the system does not let a program do that.
enum TAtendimento : int { atFeito, atNaoExiste, atNaoPermite };

class TToolkit;
/// TToolkit::MedirControle from the measure of the text alone, for toolkits with the usual marks and edges.
ORY_API TTamanho MedirControlePadrao(const TToolkit& AToolkit, TTipoControle ATipo, std::u16string_view ATexto,
                                     int ALarguraMaxima);

/// What realises forms natively. Every operation belongs to the thread of the user interface (EhThreadDaInterface).
class TToolkit {
public:
    virtual ~TToolkit() = default;

    /// "win32", "qt", "console".
    virtual const char* GetNome() const noexcept = 0;
    /// Whether the calling thread may show forms.
    virtual bool EhThreadDaInterface() const = 0;

    /// Realises AFormulario, fires OnShow, runs it until its modal result is set, writes back what the user did,
    /// and returns the result. The form's other windows of this thread are disabled meanwhile.
    virtual int ExecutarModal(TFormulario& AFormulario) = 0;
    /// Lets the message loop run once, without waiting.
    virtual void ProcessarMensagens() = 0;
    /// Shows AFormulario, which the result keeps on the screen, and comes back: the caller lets its messages through by
    /// ProcessarMensagens, which raises what handlers of the form raised. The other windows of this thread are disabled
    /// meanwhile. Null where forms cannot be shown like this.
    virtual std::shared_ptr<void> Exibir(TFormulario&) { return nullptr; }
    /// The visible windows of this thread take no input as long as the result lives. Null when there are none.
    virtual std::shared_ptr<void> DesabilitarJanelas() { return nullptr; }

    /// Whether somebody could answer a question: false without a screen and without a terminal, where a form that asks
    /// is cancelled.
    virtual bool PodePerguntar() const { return true; }
    /// The forms and pickers that are shown from now on, and that no other window of this program owns, belong to the
    /// window of that number (HWND, window of X11), of any program: they stand in front of it, on its screen. 0: to
    /// none.
    virtual TAtendimento SetJanelaDona(std::uintptr_t AJanela) { return AJanela ? atNaoPermite : atFeito; }
    /// The forms that are shown from now on stay in front of the windows of all programs.
    virtual TAtendimento SetNaFrente(bool ANaFrente) { return ANaFrente ? atNaoPermite : atFeito; }

    /// Size of ATexto in the dialog font. ALarguraMaxima above 0 wraps at words, 0 does not; line breaks count.
    virtual TTamanho MedirTexto(std::u16string_view ATexto, int ALarguraMaxima) const = 0;
    /// Size that a control of ATipo needs to show ATexto: text, mark and edges; of tcGrupoOpcoes, one option. A check
    /// box or an option is at most ALarguraMaxima wide and wraps, 0 does not wrap.
    virtual TTamanho MedirControle(TTipoControle ATipo, std::u16string_view ATexto, int ALarguraMaxima) const {
        return MedirControlePadrao(*this, ATipo, ATexto, ALarguraMaxima);
    }
    /// Size of the dialog font, in points.
    virtual int GetTamanhoFonte() const = 0;
    /// Pixels per inch of the screen on which the next form opens: the one of the active window, else the main one.
    virtual int GetPixelsPorPolegada() const = 0;
    /// Part of that screen that task bars leave free, in pixels.
    virtual TRetangulo GetAreaDeTrabalho() const = 0;

    /// Calls AAcao every AMilissegundos until switched off. Returns the number for DesligarTemporizador, never 0.
    virtual std::uintptr_t LigarTemporizador(int AMilissegundos, std::function<void()> AAcao) = 0;
    virtual void DesligarTemporizador(std::uintptr_t ATemporizador) = 0;

    /// A picker: the chosen full paths; none when cancelled. A file to write that exists has been agreed to.
    virtual std::vector<std::u16string> EscolherCaminhos(const TPedidoDeCaminho& APedido) = 0;
    std::optional<std::u16string> EscolherArquivo(std::u16string_view APastaInicial,
                                                  const std::vector<TFiltroArquivo>& AFiltros) {
        return EscolherCaminho(
            {.Selecao = scAbrir, .PastaInicial = std::u16string(APastaInicial), .Filtros = AFiltros});
    }
    std::optional<std::u16string> EscolherPasta(std::u16string_view ATitulo, std::u16string_view APastaInicial) {
        return EscolherCaminho(
            {.Selecao = scPasta, .Titulo = std::u16string(ATitulo), .PastaInicial = std::u16string(APastaInicial)});
    }
    /// The first one.
    std::optional<std::u16string> EscolherCaminho(const TPedidoDeCaminho& APedido) {
        auto caminhos = EscolherCaminhos(APedido);
        return caminhos.empty() ? std::nullopt : std::optional(std::move(caminhos.front()));
    }

    virtual void SetCursor(TCursorTela ACursor) = 0;
    /// Whether the key of that virtual-key code is down.
    virtual bool EstahPressionada(std::uint16_t ATecla) const = 0;
    virtual void Bipar() = 0;
    virtual void CopiarParaAreaDeTransferencia(std::u16string_view ATexto) = 0;
};

/// The toolkit in use: the one that the host installed; else Win32 on Windows; on Linux the Qt library when it can be
/// loaded and a display exists; else the console.
ORY_API TToolkit& BuscarToolkit();
/// The toolkit in use, for callers that are about to show or measure something. Raises Exception "Formulários só podem
/// ser mostrados pela thread da interface do usuário." when called from another thread.
ORY_API TToolkit& ExigirToolkit();
/// Installs AToolkit, which must outlive its use; null goes back to the default. Call from the user-interface thread.
ORY_API void InstalarToolkit(TToolkit* AToolkit);

}  // namespace OryUtils
