#include "oryutils/forms/win32/interno/FonteDialogo.hpp"

#include "oryutils/forms/win32/interno/TextoNativo.hpp"

#include <algorithm>

namespace OryUtils::Interno {
namespace {

// A wrapped paragraph is measured in pieces: the system's cost grows with the square of what it gets at once.
constexpr std::size_t CMaiorTrecho = 2048;

/// The screen, with AFonte chosen.
class TTela {
public:
    explicit TTela(HFONT AFonte) : FTela(::GetDC(nullptr)), FAnterior(::SelectObject(FTela, AFonte)) {}
    ~TTela() {
        ::SelectObject(FTela, FAnterior);
        ::ReleaseDC(nullptr, FTela);
    }
    TTela(const TTela&) = delete;
    TTela& operator=(const TTela&) = delete;
    operator HDC() const noexcept { return FTela; }

private:
    HDC FTela;
    HGDIOBJ FAnterior;
};

int BuscarPixelsDoSistema() {
    const HDC tela = ::GetDC(nullptr);
    const int pixels = ::GetDeviceCaps(tela, LOGPIXELSY);
    ::ReleaseDC(nullptr, tela);
    return pixels;
}

/// How much of AParagrafo to measure at once: all of it, or up to the last blank that fits.
std::size_t BuscarTrecho(std::u16string_view AParagrafo) {
    if (AParagrafo.size() <= CMaiorTrecho) return AParagrafo.size();
    const std::size_t branco = AParagrafo.rfind(u' ', CMaiorTrecho - 1);
    return branco == AParagrafo.npos ? CMaiorTrecho : branco + 1;
}

}  // namespace

TFonteDialogo::TFonteDialogo(int APixelsPorPolegada) : FPixelsPorPolegada(APixelsPorPolegada) {
    NONCLIENTMETRICSW metricas{};
    metricas.cbSize = sizeof metricas;
    if (::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metricas, &metricas, 0)) {
        // The system tells the height for its main screen.
        LONG& altura = metricas.lfMessageFont.lfHeight;
        altura = ::MulDiv(static_cast<int>(altura), FPixelsPorPolegada, BuscarPixelsDoSistema());
        FFonte = ::CreateFontIndirectW(&metricas.lfMessageFont);
    }
    if (!FFonte) FFonte = static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT));
    const TTela tela(FFonte);
    TEXTMETRICW medidas{};
    ::GetTextMetricsW(tela, &medidas);
    FAlturaLinha = static_cast<int>(medidas.tmHeight);
    FPontos = ::MulDiv(static_cast<int>(medidas.tmHeight - medidas.tmInternalLeading), 72, FPixelsPorPolegada);
}

TFonteDialogo::~TFonteDialogo() { ::DeleteObject(FFonte); }

TTamanho TFonteDialogo::Medir(std::u16string_view ATexto, int ALarguraMaxima) const {
    const std::u16string texto = ParaNativo(ATexto);
    const TTela tela(FFonte);
    const UINT formato = DT_CALCRECT | DT_NOPREFIX | DT_EXPANDTABS |
                         (ALarguraMaxima > 0 ? DT_WORDBREAK | DT_EDITCONTROL : DT_SINGLELINE);
    TTamanho tamanho{0, 0};
    std::u16string_view resto = texto;
    while (!resto.empty() || tamanho.Altura == 0) {
        const std::size_t fim = std::min(resto.find(u"\r\n"), resto.size());
        const std::size_t trecho = ALarguraMaxima > 0 ? BuscarTrecho(resto.substr(0, fim)) : fim;
        RECT retangulo{};
        if (trecho > 0) {
            retangulo.right = ALarguraMaxima;
            ::DrawTextW(tela, Interno::ParaWide(resto.data()), static_cast<int>(trecho), &retangulo, formato);
        }
        tamanho.Largura = std::max(tamanho.Largura, static_cast<int>(retangulo.right));
        tamanho.Altura += std::max(static_cast<int>(retangulo.bottom), FAlturaLinha);
        resto.remove_prefix(trecho);
        // A break at the very end opens one more line, as a label shows it.
        if (trecho == fim && !resto.empty()) {
            resto.remove_prefix(2);
            if (resto.empty()) tamanho.Altura += FAlturaLinha;
        }
    }
    return tamanho;
}

}  // namespace OryUtils::Interno
