#include "oryutils/platform/InicioDeProcessos.hpp"

#include "oryutils/platform/windows/Windows.hpp"

#include <algorithm>
#include <chrono>
#include <initializer_list>
#include <iterator>
#include <shellapi.h>
#include <vector>

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

struct TFecharAlca {
    void operator()(HANDLE AAlca) const noexcept { ::CloseHandle(AAlca); }
};
using TAlca = std::unique_ptr<void, TFecharAlca>;

/// This program's standard input for a child to inherit; none where there is none.
TAlca DuplicarEntradaPadrao() {
    const HANDLE entrada = ::GetStdHandle(STD_INPUT_HANDLE);
    if (entrada == INVALID_HANDLE_VALUE) return nullptr;
    HANDLE copia = nullptr;
    ::DuplicateHandle(::GetCurrentProcess(), entrada, ::GetCurrentProcess(), &copia, 0, TRUE, DUPLICATE_SAME_ACCESS);
    return TAlca(copia);
}

/// The handles that a child inherits. It gets no others, whatever is inheritable at that moment, so that threads that
/// start children at the same time do not meet.
class TListaDeHeranca {
public:
    explicit TListaDeHeranca(std::initializer_list<HANDLE> AAlcas) {
        std::ranges::copy_if(AAlcas, std::back_inserter(FAlcas), [](HANDLE AAlca) { return AAlca != nullptr; });
        SIZE_T tamanho = 0;
        ::InitializeProcThreadAttributeList(nullptr, 1, 0, &tamanho);
        FMemoria.resize(tamanho);
        ::InitializeProcThreadAttributeList(Get(), 1, 0, &tamanho);
        ::UpdateProcThreadAttribute(Get(), 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, FAlcas.data(),
                                    FAlcas.size() * sizeof(HANDLE), nullptr, nullptr);
    }
    ~TListaDeHeranca() { ::DeleteProcThreadAttributeList(Get()); }
    TListaDeHeranca(const TListaDeHeranca&) = delete;
    TListaDeHeranca& operator=(const TListaDeHeranca&) = delete;
    LPPROC_THREAD_ATTRIBUTE_LIST Get() { return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(FMemoria.data()); }

private:
    std::vector<HANDLE> FAlcas;
    std::vector<std::byte> FMemoria;
};

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
    constexpr DWORD CCapacidade = 1 << 20;
    HANDLE pontas[2]{};
    if (!::CreatePipe(&pontas[0], &pontas[1], nullptr, CCapacidade)) return nullptr;
    TAlca leitura(pontas[0]);
    const TAlca escrita(pontas[1]);
    ::SetHandleInformation(escrita.get(), HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT);
    const TAlca entrada = DuplicarEntradaPadrao();
    TListaDeHeranca herdadas{entrada.get(), escrita.get()};
    STARTUPINFOEXW inicio{.StartupInfo = BuscarDadosDeInicio(false), .lpAttributeList = herdadas.Get()};
    inicio.StartupInfo.cb = sizeof(inicio);
    inicio.StartupInfo.dwFlags |= STARTF_USESTDHANDLES;
    inicio.StartupInfo.hStdInput = entrada.get();
    inicio.StartupInfo.hStdOutput = escrita.get();
    inicio.StartupInfo.hStdError = escrita.get();
    std::optional<TProcessoIniciado> processo =
        Criar(ALinhaDeComando, inicio.StartupInfo, true, EXTENDED_STARTUPINFO_PRESENT);
    if (!processo) return nullptr;
    return std::unique_ptr<TProcessoCapturado>(
        new TProcessoCapturado(std::move(*processo), reinterpret_cast<std::intptr_t>(leitura.release())));
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
