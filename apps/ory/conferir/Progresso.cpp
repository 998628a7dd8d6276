#include "conferir/Progresso.hpp"

#include <algorithm>

namespace Ory {
namespace {

constexpr std::size_t CBarra = 40;
constexpr std::uint64_t CPasso = std::uint64_t{16} << 20;

}  // namespace

TProgresso::~TProgresso() {
    try {
        Apagar();
    } catch (const std::exception&) {  // a terminal that went away takes the bar with it
    }
}

void TProgresso::Mostrar(std::uint64_t ABytes) {
    const std::uint64_t passo = FTotal ? ABytes * 100 / std::max<std::uint64_t>(*FTotal, 1) : ABytes / CPasso;
    if (FMostrado == passo) return;
    FMostrado = passo;
    if (!FTotal) return Escrever(std::to_string(ABytes >> 20) + " MiB");
    const auto percentual = static_cast<std::size_t>(std::min<std::uint64_t>(passo, 100));
    const std::size_t cheios = percentual * CBarra / 100;
    Escrever("[" + std::string(cheios, '#') + std::string(CBarra - cheios, '.') + "] " + std::to_string(percentual) +
             "%");
}

void TProgresso::Apagar() {
    if (!FLargura) return;
    FSaida.Escrever("\r" + std::string(FLargura, ' ') + "\r");
    FLargura = 0;
}

void TProgresso::Escrever(const std::string& ATexto) {
    FSaida.Escrever("\r" + ATexto);
    FLargura = ATexto.size();
}

}  // namespace Ory
