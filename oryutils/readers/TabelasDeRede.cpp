#include "oryutils/readers/TabelasDeRede.hpp"

#include <charconv>
#include <cstring>
#include <span>

namespace OryUtils::Interno {
namespace {

constexpr std::uint32_t CVizinhoCompleto = 0x2;
constexpr std::uint32_t CEthernet = 0x1;
constexpr std::uint32_t CRotaAtiva = 0x1;
constexpr std::uint32_t CRotaComGateway = 0x2;
constexpr std::uint32_t CRotaQueRecusa = 0x200;

// Cuts the next piece off the front of ATexto.
std::string_view Cortar(std::string_view& ATexto, char ASeparador) {
    const std::size_t fim = ATexto.find(ASeparador);
    const std::string_view parte = ATexto.substr(0, fim);
    ATexto.remove_prefix(fim == ATexto.npos ? ATexto.size() : fim + 1);
    return parte;
}

// The words of a line in ACampos; false when there are fewer.
bool SepararCampos(std::string_view ALinha, std::span<std::string_view> ACampos) {
    for (std::string_view& campo : ACampos) {
        const std::size_t inicio = ALinha.find_first_not_of(" \t");
        if (inicio == ALinha.npos) return false;
        ALinha.remove_prefix(inicio);
        campo = ALinha.substr(0, ALinha.find_first_of(" \t"));
        ALinha.remove_prefix(campo.size());
    }
    return true;
}

std::optional<std::uint32_t> LerNumero(std::string_view ATexto, int ABase) {
    if (ATexto.starts_with("0x")) ATexto.remove_prefix(2);
    std::uint32_t valor = 0;
    const auto [fim, erro] = std::from_chars(ATexto.data(), ATexto.data() + ATexto.size(), valor, ABase);
    if (erro != std::errc() || fim != ATexto.data() + ATexto.size()) return std::nullopt;
    return valor;
}

template <std::size_t ATamanho>
std::optional<std::array<std::uint8_t, ATamanho>> LerBytes(std::string_view ATexto, char ASeparador, int ABase) {
    std::array<std::uint8_t, ATamanho> bytes{};
    for (std::uint8_t& byte : bytes) {
        const auto valor = LerNumero(Cortar(ATexto, ASeparador), ABase);
        if (!valor || *valor > 255) return std::nullopt;
        byte = static_cast<std::uint8_t>(*valor);
    }
    return bytes;
}

struct TRota {
    std::string_view Interface;
    std::uint32_t Destino, Marcas, Metrica, Mascara;
};

std::optional<TRota> LerRota(std::string_view ALinha) {
    // Iface Destination Gateway Flags RefCnt Use Metric Mask
    std::array<std::string_view, 8> campos;
    if (!SepararCampos(ALinha, campos)) return std::nullopt;
    const auto destino = LerNumero(campos[1], 16);
    const auto marcas = LerNumero(campos[3], 16);
    const auto metrica = LerNumero(campos[6], 10);
    const auto mascara = LerNumero(campos[7], 16);
    if (!destino || !marcas || !metrica || !mascara) return std::nullopt;  // the title, for one
    if (!(*marcas & CRotaAtiva) || (*marcas & CRotaQueRecusa)) return std::nullopt;
    return TRota{campos[0], *destino, *marcas, *metrica, *mascara};
}

}  // namespace

std::optional<TEnderecoMac> ProcurarVizinho(std::string_view ATabela, const TEnderecoIP& AEndereco) {
    while (!ATabela.empty()) {
        // IP address, HW type, Flags, HW address
        std::array<std::string_view, 4> campos;
        if (!SepararCampos(Cortar(ATabela, '\n'), campos)) continue;
        const auto tipo = LerNumero(campos[1], 16);
        const auto marcas = LerNumero(campos[2], 16);
        if (tipo == CEthernet && marcas && (*marcas & CVizinhoCompleto) && LerBytes<4>(campos[0], '.', 10) == AEndereco)
            return LerBytes<6>(campos[3], ':', 16);
    }
    return std::nullopt;
}

bool EstahNoEnlace(std::string_view ATabela, const TEnderecoIP& AEndereco) {
    std::uint32_t endereco = 0;  // in the order in which the kernel prints the others
    std::memcpy(&endereco, AEndereco.data(), sizeof endereco);
    while (!ATabela.empty()) {
        const auto rota = LerRota(Cortar(ATabela, '\n'));
        if (rota && !(rota->Marcas & CRotaComGateway) && (endereco & rota->Mascara) == rota->Destino) return true;
    }
    return false;
}

std::string BuscarInterfacePadrao(std::string_view ATabela) {
    std::optional<TRota> melhor;
    while (!ATabela.empty()) {
        const auto rota = LerRota(Cortar(ATabela, '\n'));
        if (rota && rota->Destino == 0 && rota->Mascara == 0 && (!melhor || rota->Metrica < melhor->Metrica))
            melhor = rota;
    }
    return melhor ? std::string(melhor->Interface) : std::string();
}

}  // namespace OryUtils::Interno
