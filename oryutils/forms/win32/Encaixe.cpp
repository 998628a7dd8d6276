#include "oryutils/forms/win32/interno/Encaixe.hpp"

#include "oryutils/forms/win32/interno/LacoDeMensagens.hpp"
#include "oryutils/forms/win32/interno/TextoNativo.hpp"

#include <algorithm>
#include <commctrl.h>

namespace OryUtils::Interno {
namespace {

constexpr std::u16string_view CReticencias = u"…";
// No screen is so wide that more characters stand on a line.
constexpr std::size_t CMaiorLinha = 1024;
constexpr int CLarguraDaDica = 600;
constexpr const wchar_t* CPropriedade = L"OryUtilsDicas";

// A "&" at the very end is drawn.
int MedirLargura(const TFonteDialogo& AFonte, std::u16string_view ATrecho) {
    std::u16string texto = RemoverAtalho(ATrecho);
    if (ATrecho.ends_with(u'&')) texto += u'&';
    return AFonte.Medir(texto, 0).Largura;
}

bool Cabe(const TFonteDialogo& AFonte, std::u16string_view ATrecho, int ALargura) {
    return MedirLargura(AFonte, ATrecho) <= ALargura;
}

// How many characters of ATexto stand on a line of ALargura: one at least.
std::size_t ContarCabem(const TFonteDialogo& AFonte, std::u16string_view ATexto, int ALargura,
                        std::u16string_view AFim = {}) {
    std::size_t cabem = 0;
    std::size_t excede = std::min(ATexto.size(), CMaiorLinha) + 1;
    while (excede - cabem > 1) {
        const std::size_t meio = (cabem + excede) / 2;
        (Cabe(AFonte, std::u16string(ATexto.substr(0, meio)) + std::u16string(AFim), ALargura) ? cabem : excede) = meio;
    }
    // Not between "&" and its letter, nor between the halves of one character.
    const auto parte = [&](std::size_t A) { return ATexto[A - 1] == u'&' || (ATexto[A - 1] & 0xFC00) == 0xD800; };
    while (cabem > 0 && cabem < ATexto.size() && parte(cabem)) --cabem;
    return cabem > 0 ? cabem : std::min<std::size_t>(ATexto.size(), 2);
}

void QuebrarParagrafo(const TFonteDialogo& AFonte, std::u16string_view AParagrafo, int ALargura,
                      std::vector<std::u16string>& ALinhas) {
    do {
        const std::size_t cabem = ContarCabem(AFonte, AParagrafo, ALargura);
        std::size_t fim = cabem;
        if (cabem < AParagrafo.size() && AParagrafo[cabem] != u' ') {
            const std::size_t branco = AParagrafo.rfind(u' ', cabem - 1);
            if (branco != AParagrafo.npos && branco > 0) fim = branco;
        }
        ALinhas.emplace_back(AParagrafo.substr(0, fim));
        AParagrafo.remove_prefix(std::min(AParagrafo.find_first_not_of(u' ', fim), AParagrafo.size()));
    } while (!AParagrafo.empty());
}

TOOLINFOW BuscarFerramenta(HWND AControle, wchar_t* ATexto) {
    TOOLINFOW ferramenta{};
    ferramenta.cbSize = TTTOOLINFOW_V1_SIZE;  // accepted by every version of the system's controls
    ferramenta.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    ferramenta.hwnd = ::GetAncestor(AControle, GA_ROOT);
    ferramenta.uId = reinterpret_cast<UINT_PTR>(AControle);
    ferramenta.lpszText = ATexto;
    return ferramenta;
}

}  // namespace

std::vector<std::u16string> QuebrarCaption(const TFonteDialogo& AFonte, std::u16string_view ACaption, int ALargura) {
    const std::u16string texto = ParaNativo(ACaption);
    std::vector<std::u16string> linhas;
    for (std::u16string_view resto = texto;;) {
        const std::size_t fim = resto.find(u"\r\n");
        QuebrarParagrafo(AFonte, resto.substr(0, fim), ALargura, linhas);
        if (fim == resto.npos) return linhas;
        resto.remove_prefix(fim + 2);
    }
}

TEncaixe EncaixarCaption(const TFonteDialogo& AFonte, std::u16string_view ACaption, TTamanho AEspaco) {
    auto linhas = QuebrarCaption(AFonte, ACaption, AEspaco.Largura);
    const auto cabem = static_cast<std::size_t>(std::max(1, AEspaco.Altura / AFonte.GetAlturaLinha()));
    TEncaixe encaixe;
    encaixe.Inteiro = linhas.size() <= cabem && (linhas.size() > 1 || Cabe(AFonte, linhas.front(), AEspaco.Largura));
    if (!encaixe.Inteiro) {
        std::u16string ultima = linhas[std::min(cabem, linhas.size()) - 1];
        linhas.resize(std::min(cabem, linhas.size()) - 1);
        ultima = ultima.substr(0, ContarCabem(AFonte, ultima, AEspaco.Largura, CReticencias));
        linhas.push_back(Cabe(AFonte, ultima + u"…", AEspaco.Largura) ? ultima + u"…" : u"…");
    }
    for (const std::u16string& linha : linhas) encaixe.Texto += (encaixe.Texto.empty() ? u"" : u"\r\n") + linha;
    return encaixe;
}

TTamanho MedirMarcavel(const TFonteDialogo& AFonte, std::u16string_view ACaption, int ALarguraMaxima) {
    const int marca = AFonte.Escalar(CFolgaDoMarcavel.Largura);
    const auto linhas = QuebrarCaption(AFonte, ACaption, std::max(1, ALarguraMaxima - marca));
    int largura = 0;
    for (const std::u16string& linha : linhas) largura = std::max(largura, MedirLargura(AFonte, linha));
    return {marca + largura,
            static_cast<int>(linhas.size()) * AFonte.GetAlturaLinha() + AFonte.Escalar(CFolgaDoMarcavel.Altura)};
}

void MostrarDica(HWND AControle, std::u16string_view ATexto) {
    const HWND raiz = ::GetAncestor(AControle, GA_ROOT);
    auto dicas = static_cast<HWND>(::GetPropW(raiz, CPropriedade));
    if (!::IsWindow(dicas)) {
        if (ATexto.empty()) return;
        // Goes with the window that owns it.
        dicas = ::CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, 0,
                                  0, 0, 0, raiz, nullptr, BuscarModulo(), nullptr);
        ::SetPropW(raiz, CPropriedade, dicas);
        ::SendMessageW(dicas, TTM_SETMAXTIPWIDTH, 0, CLarguraDaDica);
    }
    std::u16string texto = ParaNativo(ATexto);
    TOOLINFOW ferramenta = BuscarFerramenta(AControle, Interno::ParaWide(texto.data()));
    ::SendMessageW(dicas, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&ferramenta));
    if (!texto.empty()) ::SendMessageW(dicas, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&ferramenta));
}

}  // namespace OryUtils::Interno
