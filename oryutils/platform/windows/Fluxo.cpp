#include "oryutils/platform/Fluxo.hpp"

#include "oryutils/platform/Arquivos.hpp"
#include "oryutils/platform/windows/Windows.hpp"

#include <algorithm>
#include <utility>

namespace OryUtils::Interno {
namespace {

TErroFluxo DeErroDoSistema(DWORD AErro) {
    switch (AErro) {
        case ERROR_SUCCESS:
            return efNenhum;
        case ERROR_FILE_NOT_FOUND:
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_NAME:
        case ERROR_BAD_NETPATH:
            return efNaoExiste;
        case ERROR_FILE_EXISTS:
        case ERROR_ALREADY_EXISTS:
            return efJaExiste;
        case ERROR_ACCESS_DENIED:
        case ERROR_SHARING_VIOLATION:
        case ERROR_WRITE_PROTECT:
            return efSemPermissao;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
            return efDiscoCheio;
        case ERROR_BROKEN_PIPE:
        case ERROR_NO_DATA:
            return efFechado;
        default:
            return efOutro;
    }
}

HANDLE Alca(std::intptr_t AAlca) { return reinterpret_cast<HANDLE>(AAlca); }

std::wstring ParaLargo(const std::string& ATexto) {
    const int bytes = static_cast<int>(ATexto.size());
    std::wstring resultado(
        static_cast<std::size_t>(::MultiByteToWideChar(CP_UTF8, 0, ATexto.data(), bytes, nullptr, 0)), L'\0');
    ::MultiByteToWideChar(CP_UTF8, 0, ATexto.data(), bytes, resultado.data(), static_cast<int>(resultado.size()));
    return resultado;
}

bool EhPasta(const std::wstring& ANome) {
    const DWORD atributos = ::GetFileAttributesW(ANome.c_str());
    return atributos != INVALID_FILE_ATTRIBUTES && (atributos & FILE_ATTRIBUTE_DIRECTORY);
}

constexpr DWORD CPartilhaTudo = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// One call of the system takes a 32-bit count; big writes to a pipe or a console go in parts, to a file in one piece.
constexpr std::size_t CMaiorParte = 1u << 20;
constexpr std::size_t CMaiorParteDeArquivo = 1u << 30;

}  // namespace

TFluxo TFluxo::EntradaPadrao() noexcept {
    TFluxo fluxo;
    fluxo.FAlca = reinterpret_cast<std::intptr_t>(::GetStdHandle(STD_INPUT_HANDLE));
    return fluxo;
}

TFluxo TFluxo::SaidaPadrao() noexcept {
    TFluxo fluxo;
    fluxo.FAlca = reinterpret_cast<std::intptr_t>(::GetStdHandle(STD_OUTPUT_HANDLE));
    return fluxo;
}

TFluxo TFluxo::ErroPadrao() noexcept {
    TFluxo fluxo;
    fluxo.FAlca = reinterpret_cast<std::intptr_t>(::GetStdHandle(STD_ERROR_HANDLE));
    return fluxo;
}

TErroFluxo TFluxo::AbrirParaLer(const std::string& ANome) {
    Fechar();
    const std::wstring nome = ParaLargo(ANome);
    const HANDLE alca = ::CreateFileW(nome.c_str(), GENERIC_READ, CPartilhaTudo, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
    if (alca == INVALID_HANDLE_VALUE) {
        const DWORD erro = ::GetLastError();
        return EhPasta(nome) ? efEhPasta : DeErroDoSistema(erro);
    }
    FAlca = reinterpret_cast<std::intptr_t>(alca);
    FDono = true;
    return efNenhum;
}

TErroFluxo TFluxo::CriarNovo(const std::string& ANome, const std::string&) {
    Fechar();
    const HANDLE alca = ::CreateFileW(ParaLargo(ANome).c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_NEW,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (alca == INVALID_HANDLE_VALUE) return DeErroDoSistema(::GetLastError());
    FAlca = reinterpret_cast<std::intptr_t>(alca);
    FDono = true;
    return efNenhum;
}

TErroFluxo TFluxo::CriarOuEsvaziar(const std::string& ANome) {
    Fechar();
    const std::wstring nome = ParaLargo(ANome);
    const HANDLE alca = ::CreateFileW(nome.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (alca == INVALID_HANDLE_VALUE) {
        const DWORD erro = ::GetLastError();
        return EhPasta(nome) ? efEhPasta : DeErroDoSistema(erro);
    }
    FAlca = reinterpret_cast<std::intptr_t>(alca);
    FDono = true;
    return efNenhum;
}

TErroFluxo TFluxo::AbrirParaAcrescentar(const std::string& ANome) {
    Fechar();
    const HANDLE alca = ::CreateFileW(ParaLargo(ANome).c_str(), FILE_APPEND_DATA | FILE_READ_ATTRIBUTES | SYNCHRONIZE,
                                      CPartilhaTudo, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (alca == INVALID_HANDLE_VALUE) return DeErroDoSistema(::GetLastError());
    FAlca = reinterpret_cast<std::intptr_t>(alca);
    FDono = true;
    return efNenhum;
}

TErroFluxo TFluxo::Fechar() noexcept {
    const std::intptr_t alca = std::exchange(FAlca, CNenhum);
    if (!std::exchange(FDono, false)) return efNenhum;
    return ::CloseHandle(Alca(alca)) ? efNenhum : DeErroDoSistema(::GetLastError());
}

std::size_t TFluxo::Ler(std::span<char> ADestino, TErroFluxo& AErro) noexcept {
    AErro = efNenhum;
    DWORD lidos = 0;
    const auto quantidade = static_cast<DWORD>(std::min(ADestino.size(), CMaiorParte));
    if (::ReadFile(Alca(FAlca), ADestino.data(), quantidade, &lidos, nullptr)) return lidos;
    const DWORD erro = ::GetLastError();
    // The writer of a pipe has gone: that is how its end of input looks.
    if (erro != ERROR_BROKEN_PIPE && erro != ERROR_HANDLE_EOF) AErro = DeErroDoSistema(erro);
    return 0;
}

TErroFluxo TFluxo::Escrever(std::string_view ABytes) noexcept {
    const bool arquivo = ABytes.size() > CMaiorParte && ::GetFileType(Alca(FAlca)) == FILE_TYPE_DISK;
    const std::size_t parte = arquivo ? CMaiorParteDeArquivo : CMaiorParte;
    while (!ABytes.empty()) {
        DWORD escritos = 0;
        const auto quantidade = static_cast<DWORD>(std::min(ABytes.size(), parte));
        if (!::WriteFile(Alca(FAlca), ABytes.data(), quantidade, &escritos, nullptr))
            return DeErroDoSistema(::GetLastError());
        if (escritos == 0) return efOutro;
        ABytes.remove_prefix(escritos);
    }
    return efNenhum;
}

std::optional<std::uint64_t> TFluxo::BuscarTamanho() const noexcept {
    LARGE_INTEGER tamanho{};
    if (::GetFileType(Alca(FAlca)) != FILE_TYPE_DISK || !::GetFileSizeEx(Alca(FAlca), &tamanho)) return {};
    return static_cast<std::uint64_t>(tamanho.QuadPart);
}

std::optional<TMarcaDeArquivo> TFluxo::BuscarMarca() const noexcept {
    BY_HANDLE_FILE_INFORMATION dados{};
    if (::GetFileType(Alca(FAlca)) != FILE_TYPE_DISK || !::GetFileInformationByHandle(Alca(FAlca), &dados)) return {};
    const auto juntar = [](DWORD AAlta, DWORD ABaixa) { return std::uint64_t{AAlta} << 32 | ABaixa; };
    return TMarcaDeArquivo{dados.dwVolumeSerialNumber, juntar(dados.nFileIndexHigh, dados.nFileIndexLow),
                           juntar(dados.nFileSizeHigh, dados.nFileSizeLow)};
}

std::optional<TMarcaDeArquivo> BuscarMarcaDoArquivo(const std::string& ANome) {
    TFluxo fluxo;
    if (fluxo.AbrirParaAcrescentar(ANome) != efNenhum) return {};
    return fluxo.BuscarMarca();
}

bool TFluxo::EhTerminal() const noexcept {
    DWORD modo = 0;
    return ::GetConsoleMode(Alca(FAlca), &modo) != 0;
}

bool TFluxo::LerEsperaria() const noexcept {
    switch (::GetFileType(Alca(FAlca))) {
        case FILE_TYPE_PIPE: {
            DWORD prontos = 0;
            return ::PeekNamedPipe(Alca(FAlca), nullptr, 0, nullptr, &prontos, nullptr) && prontos == 0;
        }
        case FILE_TYPE_CHAR:
            return true;  // a console: somebody has to type
        default:
            return false;
    }
}

int TFluxo::BuscarLarguraDoTerminal() const noexcept {
    CONSOLE_SCREEN_BUFFER_INFO dados{};
    const bool sabe = ::GetConsoleScreenBufferInfo(Alca(FAlca), &dados) && dados.dwSize.X > 0;
    return sabe ? dados.dwSize.X : 80;
}

TErroFluxo SubstituirArquivo(const std::string& ADe, const std::string& APara) {
    const bool foi = ::MoveFileExW(ParaLargo(ADe).c_str(), ParaLargo(APara).c_str(), MOVEFILE_REPLACE_EXISTING);
    return foi ? efNenhum : DeErroDoSistema(::GetLastError());
}

TErroFluxo ExcluirArquivo(const std::string& ANome) {
    if (::DeleteFileW(ParaLargo(ANome).c_str())) return efNenhum;
    const TErroFluxo erro = DeErroDoSistema(::GetLastError());
    return erro == efNaoExiste ? efNenhum : erro;
}

}  // namespace OryUtils::Interno
