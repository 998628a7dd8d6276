#include "oryutils/forms/console/Conversa.hpp"

namespace OryUtils {
namespace {

class TConversaDoSistema final : public TConversa {
public:
    bool PodeConversar() override { return Interno::PodeConversar(); }
    void Escrever(std::u16string_view ATexto) override { Interno::EscreverNoErroPadrao(ATexto); }
    int GetColunas() override { return Interno::BuscarColunasDoTerminal(); }
    Interno::TLeituraDeLinha LerLinha(std::optional<std::chrono::milliseconds> ALimite,
                                      std::u16string& ALinha) override {
        return Interno::LerLinhaDoTerminal(ALimite, ALinha);
    }
    void MostrarDigitado(bool AMostrar) override { Interno::MostrarDigitado(AMostrar); }
    std::chrono::milliseconds GetInstante() override {
        return std::chrono::duration_cast<std::chrono::milliseconds>(
            std::chrono::steady_clock::now().time_since_epoch());
    }
};

}  // namespace

TConversa& BuscarConversaDoSistema() {
    static TConversaDoSistema conversa;
    return conversa;
}

}  // namespace OryUtils
