#include "oryutils/platform/VersaoDeArquivo.hpp"

#include "oryutils/platform/Fluxo.hpp"
#include "oryutils/readers/BlocoDeVersao.hpp"
#include "oryutils/readers/RecursoDeVersaoPe.hpp"

namespace OryUtils::Interno {
namespace {

class TFonteDeArquivo final : public TFonteDeBytes {
public:
    explicit TFonteDeArquivo(const TFluxo& AArquivo) : FArquivo(AArquivo) {}
    std::size_t Ler(std::uint64_t AInicio, std::span<char> ADestino) const override {
        return FArquivo.LerEm(AInicio, ADestino);
    }

private:
    const TFluxo& FArquivo;
};

}  // namespace

TVersaoDeArquivo::TVersaoDeArquivo(std::u16string_view AArquivo) {
    TFluxo arquivo;
    if (arquivo.AbrirArquivoParaLer(AArquivo) == efNenhum) FBloco = LerRecursoDeVersaoPe(TFonteDeArquivo(arquivo));
}

std::optional<TVersaoFixa> TVersaoDeArquivo::ConsultarFixa() const { return TBlocoDeVersao(FBloco).ConsultarFixa(); }

std::optional<TTraducao> TVersaoDeArquivo::ConsultarTraducao() const {
    return TBlocoDeVersao(FBloco).ConsultarTraducao();
}

std::optional<std::u16string> TVersaoDeArquivo::ConsultarTexto(std::u16string_view ATabela,
                                                               std::u16string_view AChave) const {
    return TBlocoDeVersao(FBloco).ConsultarTexto(ATabela, AChave);
}

}  // namespace OryUtils::Interno
