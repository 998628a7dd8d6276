#include "oryutils/platform/InicioDeProcessos.hpp"

#include "oryutils/platform/windows/Windows.hpp"

#include <algorithm>
#include <chrono>
#include <shellapi.h>

namespace OryUtils::Interno {
namespace {

// A pipe has no signal to wait on: it is looked at so often, more often when output flows.
constexpr std::chrono::milliseconds CMenorIntervalo{1}, CMaiorIntervalo{10};

// The application processes its messages between two waits, and the next wait takes no notice of them for this long:
// messages that bring others, or that nobody takes, must not keep the processor busy.
constexpr DWORD CDescanso = 10;
// A wait with messages ends this soon also without any: who processes messages may have left some in the queue, which
// would not wake a wait again.
constexpr DWORD CFatia = 20;

DWORD EsperarAlcas(DWORD AQuantidade, const HANDLE* AAlca, DWORD ALimite) {
    if (AQuantidade > 0) return ::WaitForMultipleObjects(AQuantidade, AAlca, FALSE, ALimite);
    ::Sleep(ALimite);
    return WAIT_TIMEOUT;
}

/// Waits for a handle or a message, at most ALimite.
/// Result: that of the system's wait; WAIT_OBJECT_0 + AQuantidade for a message, and after CFatia without one.
DWORD EsperarAlcaOuMensagem(DWORD AQuantidade, const HANDLE* AAlca, DWORD ALimite) {
    const DWORD situacao = EsperarAlcas(AQuantidade, AAlca, std::min(CDescanso, ALimite));
    if (situacao != WAIT_TIMEOUT || ALimite <= CDescanso) return situacao;
    const DWORD resto = ALimite - CDescanso;
    const DWORD acordado =
        ::MsgWaitForMultipleObjects(AQuantidade, AAlca, FALSE, std::min(CFatia - CDescanso, resto), QS_ALLINPUT);
    return acordado == WAIT_TIMEOUT && resto > CFatia - CDescanso ? WAIT_OBJECT_0 + AQuantidade : acordado;
}

HANDLE AlcaDe(const TAlcaDeProcesso& AAlca) { return reinterpret_cast<HANDLE>(AAlca.Get()); }
TAlcaDeProcesso Assumir(HANDLE AAlca) { return TAlcaDeProcesso(reinterpret_cast<std::intptr_t>(AAlca)); }

STARTUPINFOW BuscarDadosDeInicio(bool AExibir) {
    STARTUPINFOW inicio{};
    inicio.cb = sizeof(inicio);
    inicio.dwFlags = STARTF_USESHOWWINDOW;
    inicio.wShowWindow = AExibir ? SW_SHOWNORMAL : SW_HIDE;
    return inicio;
}

std::optional<TProcessoIniciado> Criar(std::u16string_view ALinha, STARTUPINFOW& AInicio, bool AHerdar, DWORD AOpcoes) {
    if (ALinha.find(u'\0') != ALinha.npos) return std::nullopt;
    std::u16string linha(ALinha);  // the call writes into it
    PROCESS_INFORMATION dados{};
    if (!::CreateProcessW(nullptr, ParaWide(linha.data()), nullptr, nullptr, AHerdar, AOpcoes, nullptr, nullptr,
                          &AInicio, &dados))
        return std::nullopt;
    return TProcessoIniciado{Assumir(dados.hProcess), Assumir(dados.hThread), dados.dwProcessId, dados.dwThreadId};
}

}  // namespace

std::optional<TProcessoIniciado> CriarProcesso(std::u16string_view ALinhaDeComando, bool AExibir) {
    STARTUPINFOW inicio = BuscarDadosDeInicio(AExibir);
    std::wstring area = L"winsta0\\default";
    inicio.lpDesktop = area.data();
    return Criar(ALinhaDeComando, inicio, false, CREATE_NEW_CONSOLE | NORMAL_PRIORITY_CLASS);
}

std::optional<TProcessoIniciado> ExecutarPeloSistema(const TPedidoDeExecucao& APedido) {
    const auto possuiZero = [](const std::u16string& ATexto) { return ATexto.find(u'\0') != ATexto.npos; };
    if (possuiZero(APedido.Aplicacao) || possuiZero(APedido.Parametros) || possuiZero(APedido.Pasta))
        return std::nullopt;
    SHELLEXECUTEINFOW dados{};
    dados.cbSize = sizeof(dados);
    dados.fMask = SEE_MASK_NOCLOSEPROCESS;
    dados.hwnd = static_cast<HWND>(APedido.Janela);
    dados.lpVerb = APedido.Elevar ? L"runas" : nullptr;
    dados.lpFile = ParaWide(APedido.Aplicacao);
    dados.lpParameters = ParaWide(APedido.Parametros);
    dados.lpDirectory = APedido.Pasta.empty() ? nullptr : ParaWide(APedido.Pasta);
    dados.nShow = APedido.Exibir ? SW_SHOWNORMAL : SW_HIDE;
    if (!::ShellExecuteExW(&dados)) return std::nullopt;
    TProcessoIniciado processo;
    if (!dados.hProcess) return processo;
    processo.Processo = Assumir(dados.hProcess);
    processo.ID = ::GetProcessId(dados.hProcess);
    return processo;
}

TEspera EsperarProcesso(const TProcessoIniciado& AProcesso, std::chrono::milliseconds ALimite, bool AAcordar) {
    const HANDLE processo = AlcaDe(AProcesso.Processo);
    const auto limite = static_cast<DWORD>(ALimite.count());
    const DWORD situacao =
        AAcordar ? EsperarAlcaOuMensagem(1, &processo, limite) : ::WaitForSingleObject(processo, limite);
    if (situacao == WAIT_TIMEOUT) return epTempo;
    return situacao == WAIT_OBJECT_0 + 1 ? epMensagens : epTerminou;
}

TEspera EsperarMensagens(std::chrono::milliseconds ALimite) {
    return EsperarAlcaOuMensagem(0, nullptr, static_cast<DWORD>(ALimite.count())) == WAIT_OBJECT_0 ? epMensagens
                                                                                                   : epTempo;
}

std::unique_ptr<TProcessoCapturado> TProcessoCapturado::Iniciar(std::u16string_view ALinhaDeComando) {
    SECURITY_ATTRIBUTES herdavel{.nLength = sizeof(herdavel), .lpSecurityDescriptor = nullptr, .bInheritHandle = TRUE};
    constexpr DWORD CCapacidade = 1 << 20;
    HANDLE leitura = nullptr;
    HANDLE escrita = nullptr;
    if (!::CreatePipe(&leitura, &escrita, &herdavel, CCapacidade)) return nullptr;
    // A child that held the read end would keep its own children writing to nobody.
    ::SetHandleInformation(leitura, HANDLE_FLAG_INHERIT, 0);
    STARTUPINFOW inicio = BuscarDadosDeInicio(false);
    inicio.dwFlags |= STARTF_USESTDHANDLES;
    inicio.hStdInput = ::GetStdHandle(STD_INPUT_HANDLE);
    inicio.hStdOutput = escrita;
    inicio.hStdError = escrita;
    std::optional<TProcessoIniciado> processo = Criar(ALinhaDeComando, inicio, true, 0);
    ::CloseHandle(escrita);
    if (!processo) {
        ::CloseHandle(leitura);
        return nullptr;
    }
    return std::unique_ptr<TProcessoCapturado>(
        new TProcessoCapturado(std::move(*processo), reinterpret_cast<std::intptr_t>(leitura)));
}

TProcessoCapturado::~TProcessoCapturado() { ::CloseHandle(reinterpret_cast<HANDLE>(FLeitura)); }

TProcessoCapturado::TLeitura TProcessoCapturado::Ler(std::span<char> ADestino, std::chrono::milliseconds ALimite,
                                                     std::size_t& ALidos) noexcept {
    const auto leitura = reinterpret_cast<HANDLE>(FLeitura);
    HANDLE processo = AlcaDe(FProcesso.Processo);
    DWORD prontos = 0;
    std::chrono::milliseconds passou{0};
    while (true) {
        if (!::PeekNamedPipe(leitura, nullptr, 0, nullptr, &prontos, nullptr)) return lcFim;
        if (prontos > 0) break;
        if (passou >= ALimite) return lcNada;
        // The end of the process is most often the end of the output: it is not slept through.
        const bool vivo = ::WaitForSingleObject(processo, 0) == WAIT_TIMEOUT;
        EsperarAlcas(vivo ? 1 : 0, &processo, static_cast<DWORD>(FIntervalo.count()));
        passou += FIntervalo;
        FIntervalo = std::min(FIntervalo * 2, CMaiorIntervalo);
    }
    FIntervalo = CMenorIntervalo;
    DWORD lidos = 0;
    const DWORD maximo = static_cast<DWORD>(std::min<std::size_t>(ADestino.size(), prontos));
    if (!::ReadFile(leitura, ADestino.data(), maximo, &lidos, nullptr) || lidos == 0) return lcFim;
    ALidos = lidos;
    return lcBytes;
}

}  // namespace OryUtils::Interno
