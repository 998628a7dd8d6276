#include "conferir/Blocos.hpp"

#include <utility>

namespace Ory {

// Appends AQuantidade bytes, fewer only at the end of the input.
void TLeitorDeBlocos::Encher(std::string& ADestino, std::size_t AQuantidade) {
    const std::size_t inicio = ADestino.size();
    ADestino.resize(inicio + AQuantidade);
    std::size_t lidos = 0;
    while (lidos < AQuantidade && !FFimDaEntrada) {
        const std::size_t agora = FEntrada.Ler({ADestino.data() + inicio + lidos, AQuantidade - lidos});
        FFimDaEntrada = agora == 0;
        lidos += agora;
    }
    ADestino.resize(inicio + lidos);
    FBytesLidos += lidos;
}

std::string_view TLeitorDeBlocos::EspiarInicio() {
    if (FSobra.empty()) Encher(FSobra, FLimites.Bloco);
    const std::string_view inicio = FSobra;
    if (inicio.starts_with("\xFF\xFE") || inicio.starts_with("\xFE\xFF"))
        throw EFalha("a entrada está em UTF-16; grave-a em UTF-8 ou Windows-1252");
    if (inicio.starts_with("\xEF\xBB\xBF")) {
        FPossuiMarcaUtf8 = true;
        FSobra.erase(0, 3);
    }
    return FSobra;
}

template <typename TCortar>
TLeitorDeBlocos::TLeitura TLeitorDeBlocos::LerCortando(std::string& ABloco, TCortar ACortar) {
    ABloco.swap(FSobra);
    FSobra.clear();
    std::size_t varrido = std::exchange(FVarrido, 0);
    while (true) {
        if (varrido == ABloco.size() || ABloco.size() < FLimites.Bloco) Encher(ABloco, FLimites.Bloco);
        const std::size_t fim = ACortar(std::string_view(ABloco).substr(varrido));
        if (fim) {
            const std::size_t corte = varrido + fim;
            FSobra.assign(ABloco, corte);
            FVarrido = FSobra.size();
            ABloco.resize(corte);
            return leBloco;
        }
        varrido = ABloco.size();
        if (FFimDaEntrada) return ABloco.empty() ? leFim : leBloco;
        if (ABloco.size() > FLimites.Registro) return leRegistroLongo;
    }
}

TLeitorDeBlocos::TLeitura TLeitorDeBlocos::Ler(std::string& ABloco, TCortadorDeRegistros& ACortador) {
    const TLeitura leitura = LerCortando(ABloco, [&](std::string_view APedaco) { return ACortador.Cortar(APedaco); });
    const bool falta = leitura == leBloco && EstahNoFim() && ACortador.EstahEntreAspas();
    return falta ? leAspasAbertas : leitura;
}

TLeitorDeBlocos::TLeitura TLeitorDeBlocos::LerLinhas(std::string& ABloco) {
    return LerCortando(ABloco, [](std::string_view APedaco) { return APedaco.rfind('\n') + 1; });
}

}  // namespace Ory
