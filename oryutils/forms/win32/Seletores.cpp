#include "oryutils/forms/win32/interno/Seletores.hpp"

#include "oryutils/forms/win32/interno/DesabilitarJanelas.hpp"
#include "oryutils/forms/win32/interno/TextoNativo.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <algorithm>
#include <cderr.h>
#include <commdlg.h>
#include <objbase.h>
#include <optional>
#include <shlobj.h>
#include <utility>

namespace OryUtils::Interno {
namespace {

// The longest path of the system, with its terminator.
constexpr std::size_t CMaiorCaminho = 32768;
// Some thousands of names.
constexpr std::size_t CMaiorEscolha = std::size_t{1} << 20;

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

std::vector<std::u16string> LerEscolhidos(std::u16string_view ADados) {
    std::vector<std::u16string> partes;
    while (!ADados.empty() && ADados.front() != u'\0') {
        const std::size_t fim = std::min(ADados.find(u'\0'), ADados.size());
        partes.emplace_back(ADados.substr(0, fim));
        ADados.remove_prefix(std::min(fim + 1, ADados.size()));
    }
    if (partes.size() < 2) return partes;
    std::u16string pasta = partes.front();
    if (!pasta.ends_with(u'\\')) pasta += u'\\';
    partes.erase(partes.begin());
    for (std::u16string& nome : partes) nome = pasta + nome;
    return partes;
}

std::vector<std::u16string> EscolherArquivos(const TPedidoDeCaminho& APedido) {
    const bool salva = APedido.Selecao == scSalvar;
    const bool varios = APedido.Selecao == scAbrirVarios;
    const std::u16string titulo = ParaNativo(APedido.Titulo);
    const std::u16string pasta = ParaNativo(APedido.PastaInicial);
    const std::u16string extensao = ParaNativo(APedido.ExtensaoPadrao);
    const std::u16string filtro = MontarFiltro(APedido.Filtros);
    const auto ou = [](const std::u16string& ATexto) { return ATexto.empty() ? nullptr : Interno::ParaWide(ATexto); };
    std::u16string caminho = salva ? ParaNativo(APedido.NomeSugerido) : std::u16string();
    caminho.resize(varios ? CMaiorEscolha : CMaiorCaminho, u'\0');
    const HWND dona = BuscarDona();
    const TDesabilitarJanelas desabilitadas(dona);
    OPENFILENAMEW dados{};
    dados.lStructSize = sizeof dados;
    dados.hwndOwner = dona;
    dados.lpstrFilter = APedido.Filtros.empty() ? nullptr : Interno::ParaWide(filtro);
    dados.lpstrFile = Interno::ParaWide(caminho.data());
    dados.nMaxFile = static_cast<DWORD>(caminho.size());
    dados.lpstrInitialDir = ou(pasta);
    dados.lpstrTitle = ou(titulo);
    dados.lpstrDefExt = ou(extensao);
    dados.Flags = OFN_EXPLORER | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    dados.Flags |= salva ? OFN_OVERWRITEPROMPT : OFN_FILEMUSTEXIST;
    if (varios) dados.Flags |= OFN_ALLOWMULTISELECT;
    if (salva ? ::GetSaveFileNameW(&dados) : ::GetOpenFileNameW(&dados)) return LerEscolhidos(caminho);
    if (::CommDlgExtendedError() == FNERR_BUFFERTOOSMALL) throw Exception(u"Foram escolhidos arquivos demais.");
    return {};
}

std::vector<std::u16string> EscolherPasta(const TPedidoDeCaminho& APedido) {
    const TCom com;
    const TAberturaPasta abertura{ParaNativo(APedido.Titulo), ParaNativo(APedido.PastaInicial)};
    const HWND dona = BuscarDona();
    const TDesabilitarJanelas desabilitadas(dona);
    BROWSEINFOW dados{};
    dados.hwndOwner = dona;
    dados.lpszTitle = Interno::ParaWide(abertura.Titulo);
    dados.ulFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE;
    dados.lpfn = &AoAbrirSeletorDePasta;
    dados.lParam = reinterpret_cast<LPARAM>(&abertura);
    const PIDLIST_ABSOLUTE item = ::SHBrowseForFolderW(&dados);
    if (!item) return {};
    const auto caminho = BuscarCaminho(item);
    ::CoTaskMemFree(item);
    return caminho ? std::vector{*caminho} : std::vector<std::u16string>{};
}

}  // namespace OryUtils::Interno
