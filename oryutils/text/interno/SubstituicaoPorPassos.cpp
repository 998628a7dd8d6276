#include "oryutils/text/interno/SubstituicaoPorPassos.hpp"

#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/text/interno/Busca.hpp"

#include <vector>

namespace OryUtils::Interno {
namespace {

[[noreturn]] void RecusarSemFim() {
    throw Exception(u"Argumento <ANovo> recria <AAntigo>: a substituição não terminaria.");
}

// With ANovo put in before AAntigo, either the first occurrence starts inside ANovo, and the deletion leaves the old
// one whole, or it is the old one, and what remains of it completes another one behind ANovo. There is always one more.
bool NuncaTermina(std::u16string_view AAntigo, std::u16string_view ANovo) {
    std::u16string junto(ANovo);
    junto += AAntigo;
    if (Localizar(junto, AAntigo) < ANovo.size()) return true;
    junto.erase(ANovo.size(), 1);
    return Localizar(junto, AAntigo) != CNaoEncontrado;
}

// A text with a reading point. What is before the point was searched already, and the state after each of its
// characters is kept: going back to change something never means reading from the start again.
class TTextoComPonto {
public:
    TTextoComPonto(std::u16string_view ATexto, std::u16string_view APadrao)
        : FAutomato(std::u16string(APadrao)), FDepois(ATexto.rbegin(), ATexto.rend()) {}

    // Reads up to the end of the next occurrence.
    bool LerAteOcorrencia() {
        while (!FDepois.empty()) {
            const std::size_t estado = FAutomato.Avancar(FEstados.back(), FDepois.back());
            FAntes += FDepois.back();
            FDepois.pop_back();
            FEstados.push_back(estado);
            if (estado == FAutomato.GetTamanho()) return true;
        }
        return false;
    }
    void Voltar(std::size_t AQuantidade) {
        for (; AQuantidade > 0; --AQuantidade) {
            FDepois += FAntes.back();
            ApagarAnterior();
        }
    }
    void ApagarAnterior() {
        FAntes.pop_back();
        FEstados.pop_back();
    }
    void Inserir(std::u16string_view ATexto) { FDepois.append(ATexto.rbegin(), ATexto.rend()); }
    const std::u16string& GetAntes() const { return FAntes; }

private:
    TAutomato FAutomato;
    std::u16string FAntes;
    std::vector<std::size_t> FEstados{0};  // one more than FAntes: the first is the state before everything
    std::u16string FDepois;                // the last character is the next one
};

std::u16string SubstituirUmPorUm(std::u16string_view ATexto, std::u16string_view AAntigo, std::u16string_view ANovo) {
    TTextoComPonto texto(ATexto, AAntigo);
    std::size_t passos = 0;
    while (texto.LerAteOcorrencia()) {
        // A text that ends has fewer deletions than characters; one that has twice as many never ends.
        if (++passos > 2 * ATexto.size()) RecusarSemFim();
        texto.Voltar(AAntigo.size());
        texto.Inserir(ANovo);
        texto.LerAteOcorrencia();  // perhaps an earlier one, made of what stood before and ANovo
        texto.Voltar(AAntigo.size() - 1);
        texto.ApagarAnterior();
    }
    return texto.GetAntes();
}

}  // namespace

std::u16string SubstituirPorPassos(std::u16string_view ATexto, std::u16string_view AAntigo, std::u16string_view ANovo) {
    if (Localizar(ATexto, AAntigo) == CNaoEncontrado) return std::u16string(ATexto);
    if (NuncaTermina(AAntigo, ANovo)) RecusarSemFim();
    return SubstituirUmPorUm(ATexto, AAntigo, ANovo);
}

}  // namespace OryUtils::Interno
