#include "oryutils/platform/Fluxo.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/windows/CaminhoDoSistema.hpp"
#include "oryutils/platform/windows/InstanteUtc.hpp"

#include <algorithm>
#include <utility>

namespace OryUtils::Interno {
namespace {

HANDLE Alca(std::intptr_t AAlca) { return reinterpret_cast<HANDLE>(AAlca); }
std::intptr_t Numero(HANDLE AAlca) { return reinterpret_cast<std::intptr_t>(AAlca); }

bool EhPasta(const std::u16string& ANome) {
    const DWORD atributos = ::GetFileAttributesW(CaminhoDoSistema(ANome).c_str());
    return atributos != INVALID_FILE_ATTRIBUTES && (atributos & FILE_ATTRIBUTE_DIRECTORY);
}

constexpr DWORD CPartilhaTudo = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// One call of the system takes a 32-bit count; big writes to a pipe or a console go in parts, to a file in one piece.
constexpr std::size_t CMaiorParte = 1u << 20;
constexpr std::size_t CMaiorParteDeArquivo = 1u << 30;

}  // namespace

TFluxo TFluxo::EntradaPadrao() noexcept {
    TFluxo fluxo;
    fluxo.FAlca = Numero(::GetStdHandle(STD_INPUT_HANDLE));
    return fluxo;
}

TFluxo TFluxo::SaidaPadrao() noexcept {
    TFluxo fluxo;
    fluxo.FAlca = Numero(::GetStdHandle(STD_OUTPUT_HANDLE));
    return fluxo;
}

TFluxo TFluxo::ErroPadrao() noexcept {
    TFluxo fluxo;
    fluxo.FAlca = Numero(::GetStdHandle(STD_ERROR_HANDLE));
    return fluxo;
}

TErroFluxo TFluxo::Assumir(std::intptr_t AAlca) noexcept {
    if (AAlca == CNenhum) return ClassificarErroDoSistema(::GetLastError());
    FAlca = AAlca;
    FDono = true;
    return efNenhum;
}

TErroFluxo TFluxo::AbrirParaLer(const std::string& ANome) {
    Fechar();
    const std::u16string nome = DeUtf8(ANome);
    const TErroFluxo erro = Assumir(Numero(::CreateFileW(CaminhoDoSistema(nome).c_str(), GENERIC_READ, CPartilhaTudo,
                                                         nullptr, OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr)));
    return erro != efNenhum && EhPasta(nome) ? efEhPasta : erro;
}

TErroFluxo TFluxo::AbrirArquivoParaLer(std::u16string_view AArquivo) {
    Fechar();
    if (AArquivo.find(u'\0') != AArquivo.npos) return efNaoExiste;
    const TErroFluxo erro =
        Assumir(Numero(::CreateFileW(CaminhoDoSistema(AArquivo).c_str(), GENERIC_READ, CPartilhaTudo, nullptr,
                                     OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)));
    if (erro != efNenhum || BuscarTamanho()) return erro;
    Fechar();
    return efOutro;
}

TErroFluxo TFluxo::CriarNovo(const std::string& ANome, const std::string&) {
    Fechar();
    return Assumir(Numero(::CreateFileW(CaminhoDoSistema(DeUtf8(ANome)).c_str(), GENERIC_WRITE, FILE_SHARE_READ,
                                        nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr)));
}

TErroFluxo TFluxo::AbrirParaReescrever(const std::string& ANome) {
    Fechar();
    const std::u16string nome = DeUtf8(ANome);
    // Without FILE_SHARE_WRITE a file that a log keeps open for appending would be refused.
    constexpr DWORD CPartilha = FILE_SHARE_READ | FILE_SHARE_WRITE;
    const TErroFluxo erro = Assumir(Numero(::CreateFileW(CaminhoDoSistema(nome).c_str(), GENERIC_WRITE, CPartilha,
                                                         nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr)));
    return erro != efNenhum && EhPasta(nome) ? efEhPasta : erro;
}

TErroFluxo TFluxo::CortarAqui() noexcept {
    if (!BuscarTamanho()) return efNenhum;
    return ::SetEndOfFile(Alca(FAlca)) ? efNenhum : ClassificarErroDoSistema(::GetLastError());
}

TErroFluxo TFluxo::AbrirParaAcrescentar(const std::string& ANome) {
    Fechar();
    return Assumir(Numero(::CreateFileW(CaminhoDoSistema(DeUtf8(ANome)).c_str(),
                                        FILE_APPEND_DATA | FILE_READ_ATTRIBUTES | SYNCHRONIZE, CPartilhaTudo, nullptr,
                                        OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)));
}

TErroFluxo TFluxo::Fechar() noexcept {
    const std::intptr_t alca = std::exchange(FAlca, CNenhum);
    if (!std::exchange(FDono, false)) return efNenhum;
    return ::CloseHandle(Alca(alca)) ? efNenhum : ClassificarErroDoSistema(::GetLastError());
}

std::size_t TFluxo::Ler(std::span<char> ADestino, TErroFluxo& AErro) noexcept {
    AErro = efNenhum;
    DWORD lidos = 0;
    const auto quantidade = static_cast<DWORD>(std::min(ADestino.size(), CMaiorParte));
    if (::ReadFile(Alca(FAlca), ADestino.data(), quantidade, &lidos, nullptr)) return lidos;
    const DWORD erro = ::GetLastError();
    // The writer of a pipe has gone: that is how its end of input looks.
    if (erro != ERROR_BROKEN_PIPE && erro != ERROR_HANDLE_EOF) AErro = ClassificarErroDoSistema(erro);
    return 0;
}

std::size_t TFluxo::LerEm(std::uint64_t AInicio, std::span<char> ADestino) const noexcept {
    std::size_t total = 0;
    while (total < ADestino.size()) {
        const std::uint64_t inicio = AInicio + total;
        OVERLAPPED lugar{};
        lugar.Offset = static_cast<DWORD>(inicio);
        lugar.OffsetHigh = static_cast<DWORD>(inicio >> 32);
        DWORD lidos = 0;
        const auto quantidade = static_cast<DWORD>(std::min(ADestino.size() - total, CMaiorParteDeArquivo));
        if (!::ReadFile(Alca(FAlca), ADestino.data() + total, quantidade, &lidos, &lugar) || lidos == 0) break;
        total += lidos;
    }
    return total;
}

TErroFluxo TFluxo::Escrever(std::string_view ABytes) noexcept {
    const bool arquivo = ABytes.size() > CMaiorParte && ::GetFileType(Alca(FAlca)) == FILE_TYPE_DISK;
    const std::size_t parte = arquivo ? CMaiorParteDeArquivo : CMaiorParte;
    while (!ABytes.empty()) {
        DWORD escritos = 0;
        const auto quantidade = static_cast<DWORD>(std::min(ABytes.size(), parte));
        if (!::WriteFile(Alca(FAlca), ABytes.data(), quantidade, &escritos, nullptr))
            return ClassificarErroDoSistema(::GetLastError());
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

TInstanteUtc TFluxo::BuscarUltimaGravacao() const noexcept {
    FILETIME tempo{};
    return ::GetFileTime(Alca(FAlca), nullptr, nullptr, &tempo) ? DeFileTime(tempo) : 0;
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
            return EhTerminal();  // somebody has to type; NUL has ended already
        default:
            return false;
    }
}

int TFluxo::BuscarLarguraDoTerminal() const noexcept {
    CONSOLE_SCREEN_BUFFER_INFO dados{};
    const bool sabe = ::GetConsoleScreenBufferInfo(Alca(FAlca), &dados) && dados.dwSize.X > 0;
    return sabe ? dados.dwSize.X : 80;
}

}  // namespace OryUtils::Interno
