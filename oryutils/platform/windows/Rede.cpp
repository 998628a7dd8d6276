#include "oryutils/platform/Rede.hpp"

#include "oryutils/platform/ErroDoSistema.hpp"
#include "oryutils/platform/TextoDoSistema.hpp"
#include "oryutils/platform/windows/Windows.hpp"

// Each needs the one before it.
// clang-format off
#include <winsock2.h>
#include <ws2tcpip.h>
#include <iphlpapi.h>
// clang-format on

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace OryUtils::Interno {
namespace {

constexpr WORD CVersao11 = MAKEWORD(1, 1);
constexpr WORD CVersao20 = MAKEWORD(2, 0);

/// The socket library, for as long as it is needed.
class TSoquetes {
public:
    explicit TSoquetes(WORD AVersao) : FErro(::WSAStartup(AVersao, &FDados)) {}
    ~TSoquetes() {
        if (FErro == 0) ::WSACleanup();
    }
    TSoquetes(const TSoquetes&) = delete;
    TSoquetes& operator=(const TSoquetes&) = delete;
    int GetErro() const { return FErro; }

private:
    WSADATA FDados{};
    int FErro;
};

// The old name functions speak the system's code page; a name with a zero in it is none.
std::string ParaAnsi(std::u16string_view ATexto) {
    const bool possivel = ATexto.size() <= MAX_PATH && ATexto.find(u'\0') == ATexto.npos;
    return possivel ? ParaTextoDoSistema(ATexto) : std::string();
}

std::optional<TEnderecoIP> PrimeiroEndereco(const hostent* AResposta) {
    if (!AResposta || AResposta->h_addrtype != AF_INET || !AResposta->h_addr_list[0]) return std::nullopt;
    TEnderecoIP endereco{};
    std::memcpy(endereco.data(), AResposta->h_addr_list[0], endereco.size());
    return endereco;
}

ULONG ParaNumero(const TEnderecoIP& AEndereco) {
    ULONG numero = 0;
    std::memcpy(&numero, AEndereco.data(), sizeof numero);
    return numero;
}

bool PossuiEndereco(const IP_ADAPTER_ADDRESSES& AAdaptador, const TEnderecoIP& AEndereco) {
    for (const auto* e = AAdaptador.FirstUnicastAddress; e; e = e->Next) {
        if (e->Address.lpSockaddr->sa_family != AF_INET) continue;
        sockaddr_in endereco{};
        std::memcpy(&endereco, e->Address.lpSockaddr, sizeof endereco);
        if (endereco.sin_addr.s_addr == ParaNumero(AEndereco)) return true;
    }
    return false;
}

std::vector<TEnderecoMac> ListarAdaptadores(const std::optional<TEnderecoIP>& AEndereco) {
    ULONG tamanho = 16384;
    std::vector<std::max_align_t> area;
    ULONG erro = ERROR_BUFFER_OVERFLOW;
    // Adapters come and go between two calls.
    for (int vez = 0; vez < 5 && erro == ERROR_BUFFER_OVERFLOW; ++vez) {
        area.resize(tamanho / sizeof(std::max_align_t) + 1);
        erro = ::GetAdaptersAddresses(AF_INET, GAA_FLAG_SKIP_DNS_SERVER, nullptr,
                                      reinterpret_cast<IP_ADAPTER_ADDRESSES*>(area.data()), &tamanho);
    }
    std::vector<TEnderecoMac> lista;
    if (erro != NO_ERROR) return lista;
    for (const auto* a = reinterpret_cast<const IP_ADAPTER_ADDRESSES*>(area.data()); a; a = a->Next) {
        TEnderecoMac mac{};
        if (a->PhysicalAddressLength != mac.size() || a->IfType == IF_TYPE_SOFTWARE_LOOPBACK) continue;
        if (AEndereco && !PossuiEndereco(*a, *AEndereco)) continue;
        std::memcpy(mac.data(), a->PhysicalAddress, mac.size());
        lista.push_back(mac);
    }
    return lista;
}

std::optional<TEnderecoMac> ProcurarVizinho(const TEnderecoIP& AEndereco) {
    ULONG tamanho = 0;
    ::GetIpNetTable(nullptr, &tamanho, FALSE);
    std::vector<std::max_align_t> area(tamanho / sizeof(std::max_align_t) + 1);
    tamanho = static_cast<ULONG>(area.size() * sizeof(std::max_align_t));
    auto* tabela = reinterpret_cast<MIB_IPNETTABLE*>(area.data());
    if (::GetIpNetTable(tabela, &tamanho, FALSE) != NO_ERROR) return std::nullopt;
    for (DWORD i = 0; i < tabela->dwNumEntries; ++i) {
        const MIB_IPNETROW& linha = tabela->table[i];
        TEnderecoMac mac{};
        if (linha.dwAddr != ParaNumero(AEndereco) || linha.dwPhysAddrLen != mac.size()) continue;
        std::memcpy(mac.data(), linha.bPhysAddr, mac.size());
        return mac;
    }
    return std::nullopt;
}

}  // namespace

std::optional<TEnderecoIP> LerEnderecoIP(std::u16string_view ATexto) {
    const std::string texto = ParaAnsi(ATexto);
    const unsigned long lido = texto.empty() ? INADDR_NONE : ::inet_addr(texto.c_str());
    if (lido == INADDR_NONE) return std::nullopt;
    TEnderecoIP endereco{};
    std::memcpy(endereco.data(), &lido, endereco.size());
    return endereco;
}

std::optional<TEnderecoIP> BuscarEnderecoDestaMaquina(std::u16string& AErro) {
    const TSoquetes soquetes(CVersao11);
    std::array<char, 128> nome{};
    std::optional<TEnderecoIP> endereco;
    int erro = soquetes.GetErro();
    if (erro == 0 && ::gethostname(nome.data(), static_cast<int>(nome.size())) != 0) erro = ::WSAGetLastError();
    if (erro == 0) {
        endereco = PrimeiroEndereco(::gethostbyname(nome.data()));
        if (!endereco) erro = ::WSAGetLastError();
    }
    if (!endereco) AErro = DescreverErroDoSistema(static_cast<std::uint32_t>(erro));
    return endereco;
}

std::optional<TEnderecoIP> ResolverNome(std::u16string_view ANome) {
    const std::string nome = ParaAnsi(ANome);
    const TSoquetes soquetes(CVersao20);
    if (nome.empty() != ANome.empty() || soquetes.GetErro() != 0) return std::nullopt;
    return PrimeiroEndereco(::gethostbyname(nome.c_str()));
}

std::u16string BuscarNomeDoEndereco(const TEnderecoIP& AEndereco) {
    const TSoquetes soquetes(CVersao20);
    if (soquetes.GetErro() != 0) return {};
    const auto* bytes = reinterpret_cast<const char*>(AEndereco.data());
    const hostent* resposta = ::gethostbyaddr(bytes, static_cast<int>(AEndereco.size()), AF_INET);
    return resposta && resposta->h_name ? DeTextoDoSistema(resposta->h_name) : std::u16string();
}

std::optional<TEnderecoMac> PerguntarEnderecoMac(const TEnderecoIP& AEndereco) {
    TEnderecoMac mac{};
    ULONG tamanho = static_cast<ULONG>(mac.size());
    if (::SendARP(ParaNumero(AEndereco), 0, mac.data(), &tamanho) != NO_ERROR || tamanho != mac.size())
        return std::nullopt;
    return mac;
}

std::vector<TEnderecoMac> ListarEnderecosMac(const std::optional<TEnderecoIP>& AEndereco) {
    std::vector<TEnderecoMac> lista = ListarAdaptadores(AEndereco);
    if (!lista.empty() || !AEndereco) return lista;
    if (const auto vizinho = ProcurarVizinho(*AEndereco)) lista.push_back(*vizinho);
    return lista;
}

}  // namespace OryUtils::Interno
