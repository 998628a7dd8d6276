#include "Leitura.hpp"

namespace Ory {
namespace {

constexpr std::size_t CBloco = std::size_t{64} << 10;
constexpr std::string_view CMarcaUtf8 = "\xEF\xBB\xBF";

}  // namespace

bool TBytesLidos::LerMais(std::size_t AQuantos) {
    if (FFim) return false;
    if (FAoEsperar && FEntrada.LerEsperaria()) FAoEsperar();
    FBytes.erase(0, std::exchange(FInicio, 0));
    const std::size_t antes = FBytes.size();
    FBytes.resize(antes + AQuantos);
    const std::size_t lidos = FEntrada.Ler(std::span(FBytes).subspan(antes));
    FBytes.resize(antes + lidos);
    FTotal += lidos;
    FFim = lidos == 0;
    return !FFim;
}

bool TBytesLidos::PularMarcaUtf8() {
    while (Get().size() < CMarcaUtf8.size() && CMarcaUtf8.starts_with(Get()))
        if (!LerMais(CBloco)) return false;
    if (!Get().starts_with(CMarcaUtf8)) return false;
    Usar(CMarcaUtf8.size());
    return true;
}

TLeitorDeLinhas::TLeitura TLeitorDeLinhas::Proxima() {
    bool longa = false;
    std::size_t procurados = 0;  // bytes of the line that hold no LF
    while (true) {
        const std::string_view bytes = FBytes.Get();
        const std::size_t quebra = bytes.find('\n', procurados);
        if (quebra != std::string_view::npos) {
            FLinha = bytes.substr(0, quebra);
            FBytes.Usar(quebra + 1);
            break;
        }
        procurados = bytes.size();
        if (procurados > FMaior) {
            longa = true;
            FBytes.Usar(std::exchange(procurados, 0));
        }
        if (FBytes.LerMais(CBloco)) continue;
        FLinha = FBytes.Get();
        if (FLinha.empty() && !longa) return leFim;
        FBytes.Usar(FLinha.size());
        break;
    }
    if (longa || FLinha.size() > FMaior) return leLonga;
    if (FLinha.ends_with('\r')) FLinha.remove_suffix(1);
    return leLinha;
}

}  // namespace Ory
