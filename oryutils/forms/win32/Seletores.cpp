#include "oryutils/forms/win32/interno/Seletores.hpp"

#include "oryutils/forms/win32/interno/DesabilitarJanelas.hpp"
#include "oryutils/forms/win32/interno/TextoNativo.hpp"

#include <commdlg.h>
#include <objbase.h>
#include <shlobj.h>
#include <utility>

namespace OryUtils::Interno {
namespace {

// The longest path of the system, with its terminator.
constexpr std::size_t CMaiorCaminho = 32768;

/// The folder browser needs COM on its thread.
class TCom {
public:
    TCom() : FResultado(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE)) {}
    ~TCom() {
        if (SUCCEEDED(FResultado)) ::CoUninitialize();
    }
    TCom(const TCom&) = delete;
    TCom& operator=(const TCom&) = delete;

private:
    HRESULT FResultado;
};

struct TAberturaPasta {
    std::u16string Titulo;
    std::u16string Pasta;
};

int CALLBACK AoAbrirSeletorDePasta(HWND AJanela, UINT AMensagem, LPARAM, LPARAM ADados) {
    if (AMensagem != BFFM_INITIALIZED) return 0;
    const auto& abertura = *reinterpret_cast<const TAberturaPasta*>(ADados);
    if (!abertura.Titulo.empty()) EscreverTexto(AJanela, abertura.Titulo);
    if (!abertura.Pasta.empty())
        ::SendMessageW(AJanela, BFFM_SETSELECTIONW, TRUE, reinterpret_cast<LPARAM>(Interno::ParaWide(abertura.Pasta)));
    return 0;
}

/// The path of AItem, of any length.
std::optional<std::u16string> BuscarCaminho(PIDLIST_ABSOLUTE AItem) {
    wchar_t* caminho = nullptr;
    if (FAILED(::SHGetNameFromIDList(AItem, SIGDN_FILESYSPATH, &caminho))) return std::nullopt;
    auto resultado = Interno::DeWide(caminho);
    ::CoTaskMemFree(caminho);
    return resultado;
}

}  // namespace

std::u16string MontarFiltro(const std::vector<TFiltroArquivo>& AFiltros) {
    std::u16string filtro;
    for (const auto& cada : AFiltros) {
        filtro += ParaNativo(cada.Descricao) + u'\0';
        filtro += ParaNativo(cada.Mascara) + u'\0';
    }
    return filtro + u'\0';
}

std::optional<std::u16string> EscolherArquivo(std::u16string_view APastaInicial,
                                              const std::vector<TFiltroArquivo>& AFiltros) {
    const std::u16string pasta = ParaNativo(APastaInicial);
    const std::u16string filtro = MontarFiltro(AFiltros);
    std::u16string caminho(CMaiorCaminho, u'\0');
    const HWND dona = BuscarDona();
    const TDesabilitarJanelas desabilitadas(dona);
    OPENFILENAMEW dados{};
    dados.lStructSize = sizeof dados;
    dados.hwndOwner = dona;
    dados.lpstrFilter = AFiltros.empty() ? nullptr : Interno::ParaWide(filtro);
    dados.lpstrFile = Interno::ParaWide(caminho.data());
    dados.nMaxFile = static_cast<DWORD>(caminho.size());
    dados.lpstrInitialDir = pasta.empty() ? nullptr : Interno::ParaWide(pasta);
    dados.Flags = OFN_EXPLORER | OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    if (!::GetOpenFileNameW(&dados)) return std::nullopt;
    caminho.resize(caminho.find(u'\0'));
    return caminho;
}

std::optional<std::u16string> EscolherPasta(std::u16string_view ATitulo, std::u16string_view APastaInicial) {
    const TCom com;
    const TAberturaPasta abertura{ParaNativo(ATitulo), ParaNativo(APastaInicial)};
    const HWND dona = BuscarDona();
    const TDesabilitarJanelas desabilitadas(dona);
    BROWSEINFOW dados{};
    dados.hwndOwner = dona;
    dados.lpszTitle = Interno::ParaWide(abertura.Titulo);
    dados.ulFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE;
    dados.lpfn = &AoAbrirSeletorDePasta;
    dados.lParam = reinterpret_cast<LPARAM>(&abertura);
    const PIDLIST_ABSOLUTE item = ::SHBrowseForFolderW(&dados);
    if (!item) return std::nullopt;
    auto caminho = BuscarCaminho(item);
    ::CoTaskMemFree(item);
    return caminho;
}

}  // namespace OryUtils::Interno
