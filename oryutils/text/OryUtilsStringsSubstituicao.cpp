// SubstituirCaracteres: the replacement that looks at the whole text again after each step.
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/text/OryUtilsStrings.hpp"
#include "oryutils/text/interno/Busca.hpp"

#include <vector>

namespace OryUtils {
namespace {

using Interno::CNaoEncontrado;
using Interno::Localizar;

[[noreturn]] void RecusarSemFim() {
    throw Exception(u"Argumento <ANovo> recria <AAntigo>: a substituição não terminaria.");
}

// Whether each step makes a new occurrence. A step puts ANovo before AAntigo and deletes one character. Where an
// occurrence now starts inside ANovo, that one loses its character and AAntigo stays whole. Otherwise AAntigo loses its
// first character, and ANovo with the rest of it may hold AAntigo again.
bool NuncaTermina(std::u16string_view AAntigo, std::u16string_view ANovo) {
    std::u16string junto(ANovo);
    junto += AAntigo;
    if (Localizar(junto, AAntigo) < ANovo.size()) return true;
    junto.erase(ANovo.size(), 1);
    return Localizar(junto, AAntigo) != CNaoEncontrado;
}

// A text with a reading point. The text before the point is searched already. The state of the search after each of its
// characters is kept, so that going back to change something never means reading from the start again.
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
    Interno::TAutomato FAutomato;
    std::u16string FAntes;
    std::vector<std::size_t> FEstados{0};  // one more than FAntes: the first is the state before everything
    std::u16string FDepois;                // the last character is the next one
};

}  // namespace

std::u16string TOryUtilsStrings::SubstituirCaracteres(std::u16string_view ATexto, std::u16string_view AAntigo,
                                                      std::u16string_view ANovo) {
    if (Localizar(ATexto, AAntigo) == CNaoEncontrado) return std::u16string(ATexto);
    if (NuncaTermina(AAntigo, ANovo)) RecusarSemFim();
    TTextoComPonto texto(ATexto, AAntigo);
    std::size_t passos = 0;
    while (texto.LerAteOcorrencia()) {
        // A replacement that ends deletes fewer characters than the text has. Twice as many never end.
        if (++passos > 2 * ATexto.size()) RecusarSemFim();
        texto.Voltar(AAntigo.size());
        texto.Inserir(ANovo);
        texto.LerAteOcorrencia();  // may be an earlier one than before: ANovo can complete what stood in front of it
        texto.Voltar(AAntigo.size() - 1);
        texto.ApagarAnterior();
    }
    return texto.GetAntes();
}

}  // namespace OryUtils
