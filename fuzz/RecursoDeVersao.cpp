// Any bytes as a PE file and as a version resource, and a right file with any of its bytes changed. What is found lies
// inside; the way to it is short.
#include "oryutils/readers/BlocoDeVersao.hpp"
#include "oryutils/readers/RecursoDeVersaoPe.hpp"

#include "../tests/files/ConstrutorPe.hpp"
#include "Comum.hpp"

#include <algorithm>

using namespace OryUtils::Interno;

namespace {

/// A copy of its own, so that a read outside is seen.
class TFonteDeFuzz final : public TFonteDeBytes {
public:
    explicit TFonteDeFuzz(std::vector<char> ABytes) : FBytes(std::move(ABytes)) {}
    std::size_t Ler(std::uint64_t AInicio, std::span<char> ADestino) const override {
        ++Leituras;
        if (AInicio >= FBytes.size()) return 0;
        const std::size_t lidos = std::min<std::size_t>(ADestino.size(), FBytes.size() - AInicio);
        std::copy_n(FBytes.begin() + static_cast<std::ptrdiff_t>(AInicio), lidos, ADestino.begin());
        return lidos;
    }
    mutable std::size_t Leituras = 0;

private:
    std::vector<char> FBytes;
};

void Perguntar(const std::vector<char>& ABloco) {
    const TBlocoDeVersao bloco(ABloco);
    static_cast<void>(bloco.ConsultarFixa());
    static_cast<void>(bloco.ConsultarTraducao());
    for (const auto chave : {u"CompanyName", u"Comments"})
        if (const auto texto = bloco.ConsultarTexto(u"040904b0", chave))
            Fuzz::Exigir(texto->size() * 2 <= ABloco.size());
}

void LerArquivo(std::vector<char> ABytes) {
    const std::size_t tamanho = ABytes.size();
    const TFonteDeFuzz fonte(std::move(ABytes));
    const auto bloco = LerRecursoDeVersaoPe(fonte);
    Fuzz::Exigir(bloco.size() <= tamanho && fonte.Leituras < 10'000);
    Perguntar(bloco);
}

/// Places and values by turns.
std::vector<char> Trocar(std::string ABytes, Fuzz::TEntrada AEntrada) {
    while (!AEntrada.Acabou()) {
        const std::size_t lugar = AEntrada.Valor<std::uint16_t>() % ABytes.size();
        ABytes[lugar] = static_cast<char>(AEntrada.Byte());
    }
    return {ABytes.begin(), ABytes.end()};
}

}  // namespace

void Fuzz::Provar(TEntrada AEntrada) {
    static const std::string bloco = Pe::Montar(Pe::Raiz(
        {{1, 2, 3, 4}},
        {Pe::Textos({Pe::Tabela(u"040904b0", {Pe::Texto(u"CompanyName", u"a"), Pe::Texto(u"Comments", u"b")})}),
         Pe::Traducoes({{0x409, 1200}})}));
    static const std::string arquivos[] = {Pe::MontarArquivo(false, {{0, bloco}}),
                                           Pe::MontarArquivo(true, {{0x416, bloco}, {0x409, bloco}})};
    const std::string bytes = TEntrada(AEntrada).Bytes();
    LerArquivo({bytes.begin(), bytes.end()});
    Perguntar({bytes.begin(), bytes.end()});
    for (const std::string& arquivo : arquivos) LerArquivo(Trocar(arquivo, AEntrada));
    Perguntar(Trocar(bloco, AEntrada));
}
