#include "oryutils/platform/Rede.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/Arquivos.hpp"
#include "oryutils/platform/ErroDoSistema.hpp"
#include "oryutils/platform/linux/Descritor.hpp"
#include "oryutils/readers/TabelasDeRede.hpp"

#include <algorithm>
#include <arpa/inet.h>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <ifaddrs.h>
#include <memory>
#include <net/if.h>
#include <netdb.h>
#include <netinet/in.h>
#include <netpacket/packet.h>
#include <sys/socket.h>
#include <thread>

namespace OryUtils::Interno {
namespace {

using namespace std::chrono_literals;

constexpr std::uint8_t CRedeDeVolta = 127;
constexpr std::uint16_t CPortaDescarte = 9;
constexpr auto CEsperaDoVizinho = 1000ms;
constexpr auto CPassoDaEspera = 10ms;

// A name that ends before the end of the text is not the one that was meant.
bool PossuiZero(std::u16string_view ATexto) { return ATexto.find(u'\0') != ATexto.npos; }

// Calls a reentrant function of netdb with ever more room for its answer.
template <typename TChamar, typename TUsar>
void ComResposta(TChamar AChamar, TUsar AUsar) {
    std::vector<char> area(1024);
    hostent dados{};
    hostent* resposta = nullptr;
    int erro = 0;
    while (AChamar(dados, area, resposta, erro) == ERANGE) area.resize(area.size() * 2);
    AUsar(resposta, erro);
}

std::optional<TEnderecoIP> PrimeiroEndereco(const hostent* AResposta) {
    if (!AResposta || AResposta->h_addrtype != AF_INET || !AResposta->h_addr_list[0]) return std::nullopt;
    TEnderecoIP endereco{};
    std::memcpy(endereco.data(), AResposta->h_addr_list[0], endereco.size());
    return endereco;
}

std::optional<TEnderecoIP> Resolver(const char* ANome, int& AErro) {
    std::optional<TEnderecoIP> endereco;
    ComResposta(
        [&](hostent& ADados, std::vector<char>& AArea, hostent*& AResposta, int& AFalha) {
            return ::gethostbyname2_r(ANome, AF_INET, &ADados, AArea.data(), AArea.size(), &AResposta, &AFalha);
        },
        [&](const hostent* AResposta, int AFalha) {
            endereco = PrimeiroEndereco(AResposta);
            AErro = AFalha;
        });
    return endereco;
}

using TInterfaces = std::unique_ptr<ifaddrs, void (*)(ifaddrs*)>;
TInterfaces ListarInterfaces() {
    ifaddrs* lista = nullptr;
    if (::getifaddrs(&lista) != 0) lista = nullptr;
    return {lista, ::freeifaddrs};
}

std::optional<TEnderecoIP> EnderecoDe(const ifaddrs& AInterface) {
    if (!AInterface.ifa_addr || AInterface.ifa_addr->sa_family != AF_INET) return std::nullopt;
    sockaddr_in endereco{};
    std::memcpy(&endereco, AInterface.ifa_addr, sizeof endereco);
    TEnderecoIP bytes{};
    std::memcpy(bytes.data(), &endereco.sin_addr, bytes.size());
    return bytes;
}

std::optional<TEnderecoMac> MacDe(const ifaddrs& AInterface) {
    if (!AInterface.ifa_addr || AInterface.ifa_addr->sa_family != AF_PACKET) return std::nullopt;
    sockaddr_ll endereco{};
    std::memcpy(&endereco, AInterface.ifa_addr, sizeof endereco);
    TEnderecoMac mac{};
    if (endereco.sll_halen != mac.size() || (AInterface.ifa_flags & IFF_LOOPBACK)) return std::nullopt;
    std::memcpy(mac.data(), endereco.sll_addr, mac.size());
    return mac;
}

std::optional<TEnderecoIP> BuscarEnderecoDeInterface() {
    const TInterfaces interfaces = ListarInterfaces();
    const std::string padrao = BuscarInterfacePadrao(LerArquivo(u"/proc/net/route").value_or(""));
    std::optional<TEnderecoIP> primeiro;
    for (const ifaddrs* i = interfaces.get(); i; i = i->ifa_next) {
        const auto endereco = EnderecoDe(*i);
        if (!endereco || !(i->ifa_flags & IFF_UP) || (i->ifa_flags & IFF_LOOPBACK)) continue;
        if (padrao == i->ifa_name) return endereco;
        if (!primeiro) primeiro = endereco;
    }
    return primeiro;
}

// The adapters that have AEndereco, or all of them.
std::vector<TEnderecoMac> ListarAdaptadores(const std::optional<TEnderecoIP>& AEndereco) {
    const TInterfaces interfaces = ListarInterfaces();
    std::vector<std::string> nomes;
    for (const ifaddrs* i = interfaces.get(); i; i = i->ifa_next) {
        if (!AEndereco || EnderecoDe(*i) != AEndereco) continue;
        const std::string nome = i->ifa_name;
        nomes.push_back(nome.substr(0, nome.find(':')));  // "eth0:1" is a second address of eth0
    }
    std::vector<TEnderecoMac> lista;
    for (const ifaddrs* i = interfaces.get(); i; i = i->ifa_next)
        if (const auto mac = MacDe(*i))
            if (!AEndereco || std::find(nomes.begin(), nomes.end(), i->ifa_name) != nomes.end()) lista.push_back(*mac);
    return lista;
}

std::optional<TEnderecoMac> ProcurarVizinhoAgora(const TEnderecoIP& AEndereco) {
    return ProcurarVizinho(LerArquivo(u"/proc/net/arp").value_or(""), AEndereco);
}

// An empty datagram to a port where nobody listens: before it can go, the kernel must ask who has the address.
bool ProvocarVizinho(const TEnderecoIP& AEndereco) {
    const TDescritor soquete(::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (soquete.Falhou()) return false;
    sockaddr_in destino{};
    destino.sin_family = AF_INET;
    destino.sin_port = htons(CPortaDescarte);
    std::memcpy(&destino.sin_addr, AEndereco.data(), AEndereco.size());
    const auto* const endereco = reinterpret_cast<const sockaddr*>(&destino);
    return ::sendto(soquete.Get(), "", 0, MSG_NOSIGNAL, endereco, sizeof destino) == 0;
}

}  // namespace

std::optional<TEnderecoIP> LerEnderecoIP(std::u16string_view ATexto) {
    if (PossuiZero(ATexto)) return std::nullopt;
    const in_addr_t lido = ::inet_addr(ParaUtf8(ATexto).c_str());
    if (lido == INADDR_NONE) return std::nullopt;
    TEnderecoIP endereco{};
    std::memcpy(endereco.data(), &lido, endereco.size());
    return endereco;
}

std::optional<TEnderecoIP> BuscarEnderecoDestaMaquina(std::u16string& AErro) {
    std::array<char, 128> nome{};
    int falha = 0;
    std::optional<TEnderecoIP> endereco;
    if (::gethostname(nome.data(), nome.size() - 1) == 0) {
        endereco = Resolver(nome.data(), falha);
        if (!endereco) AErro = DeUtf8(::hstrerror(falha));
    } else {
        AErro = DescreverErroDoSistema(static_cast<std::uint32_t>(errno));
    }
    if (endereco && endereco->front() != CRedeDeVolta) return endereco;
    const auto daInterface = BuscarEnderecoDeInterface();
    return daInterface ? daInterface : endereco;
}

std::optional<TEnderecoIP> ResolverNome(std::u16string_view ANome) {
    std::u16string erro;
    if (ANome.empty()) return BuscarEnderecoDestaMaquina(erro);
    if (PossuiZero(ANome)) return std::nullopt;
    int falha = 0;
    return Resolver(ParaUtf8(ANome).c_str(), falha);
}

std::u16string BuscarNomeDoEndereco(const TEnderecoIP& AEndereco) {
    std::u16string nome;
    ComResposta(
        [&](hostent& ADados, std::vector<char>& AArea, hostent*& AResposta, int& AFalha) {
            return ::gethostbyaddr_r(AEndereco.data(), socklen_t{4}, AF_INET, &ADados, AArea.data(), AArea.size(),
                                     &AResposta, &AFalha);
        },
        [&](const hostent* AResposta, int) {
            if (AResposta && AResposta->h_name) nome = DeUtf8(AResposta->h_name);
        });
    return nome;
}

std::optional<TEnderecoMac> PerguntarEnderecoMac(const TEnderecoIP& AEndereco) {
    if (const auto proprios = ListarAdaptadores(AEndereco); !proprios.empty()) return proprios.front();
    if (const auto vizinho = ProcurarVizinhoAgora(AEndereco)) return vizinho;
    if (!EstahNoEnlace(LerArquivo(u"/proc/net/route").value_or(""), AEndereco) || !ProvocarVizinho(AEndereco))
        return std::nullopt;
    for (auto esperado = 0ms; esperado < CEsperaDoVizinho; esperado += CPassoDaEspera) {
        if (const auto vizinho = ProcurarVizinhoAgora(AEndereco)) return vizinho;
        std::this_thread::sleep_for(CPassoDaEspera);
    }
    return std::nullopt;
}

std::vector<TEnderecoMac> ListarEnderecosMac(const std::optional<TEnderecoIP>& AEndereco) {
    std::vector<TEnderecoMac> lista = ListarAdaptadores(AEndereco);
    if (!lista.empty() || !AEndereco) return lista;
    if (const auto vizinho = ProcurarVizinhoAgora(*AEndereco)) lista.push_back(*vizinho);
    return lista;
}

}  // namespace OryUtils::Interno
