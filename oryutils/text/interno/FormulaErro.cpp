#include "oryutils/text/interno/FormulaErro.hpp"

#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

namespace OryUtils::Interno {

void TErroFormula::Lancar() const {
    switch (Motivo) {
        case meDoisArgumentos:
            throw Exception(u"São necessários dois argumentos para calcular a função.");
        case meVariavel:
            throw Exception(u"Variável '" + Texto + u"' não existe.");
        case meSemFim:
            throw Exception(u"Variáveis da fórmula sem fim.");
        case meNumero:
            TextoParaExtended(Texto);
            break;
        case meNenhum:
            break;
    }
    throw EConvertError(u"'" + Texto + u"'");
}

}  // namespace OryUtils::Interno
