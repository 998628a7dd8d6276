#include "mensagem/Andamento.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/Console.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include "mensagem/Resposta.hpp"

#include <array>
#include <charconv>
#include <chrono>
#include <thread>

namespace Ory {
namespace {

using namespace OryUtils;

// How long the dialog may wait for a line before it looks at its window again.
constexpr std::chrono::milliseconds CEspera{20};
// A longer line is cut: no screen shows it.
constexpr std::size_t CMaiorLinha = 16384;

bool Mostrar(TOryUtilsDialogsAndamento& AAndamento, std::string_view ALinha) {
    const TLinhaDeAndamento lida = LerLinhaDeAndamento(ALinha);
    if (lida.Percentual && lida.Texto) return AAndamento.Atualizar(*lida.Percentual, DeUtf8(*lida.Texto));
    if (lida.Percentual) return AAndamento.Atualizar(*lida.Percentual);
    return lida.Texto ? AAndamento.Atualizar(DeUtf8(*lida.Texto)) : AAndamento.Atualizar();
}

// Whole lines out of the parts in which the input comes.
class TLinhas {
public:
    /// False once AMostrar has said so.
    template <typename TMostrar>
    bool Receber(std::string_view AParte, const TMostrar& AMostrar) {
        for (const char c : AParte) {
            if (c != '\n') {
                if (FLinha.size() < CMaiorLinha) FLinha += c;
                continue;
            }
            const bool segue = AMostrar(FLinha);
            FLinha.clear();
            if (!segue) return false;
        }
        return true;
    }
    const std::string& GetResto() const { return FLinha; }

private:
    std::string FLinha{};
};

// Somebody types the lines.
bool SeguirTerminal(TOryUtilsDialogsAndamento& AAndamento) {
    while (true) {
        std::u16string linha;
        const auto lida = Interno::LerLinhaDoTerminal(CEspera, linha);
        if (lida == Interno::llFim) return true;
        if (!(lida == Interno::llLinha ? Mostrar(AAndamento, ParaUtf8(linha)) : AAndamento.Atualizar())) return false;
    }
}

bool SeguirEntrada(TOryUtilsDialogsAndamento& AAndamento, TEntrada& AEntrada) {
    std::array<char, 4096> parte{};
    TLinhas linhas;
    const auto mostrar = [&](std::string_view ALinha) { return Mostrar(AAndamento, ALinha); };
    while (true) {
        if (AEntrada.LerEsperaria()) {
            if (!AAndamento.Atualizar()) return false;
            std::this_thread::sleep_for(CEspera);
            continue;
        }
        const std::size_t lidos = AEntrada.Ler(parte);
        if (lidos == 0) return linhas.GetResto().empty() || mostrar(linhas.GetResto());
        if (!linhas.Receber({parte.data(), lidos}, mostrar)) return false;
    }
}

}  // namespace

TLinhaDeAndamento LerLinhaDeAndamento(std::string_view ALinha) {
    if (ALinha.ends_with('\r')) ALinha.remove_suffix(1);
    TLinhaDeAndamento lida;
    if (ALinha.empty()) return lida;
    std::string numero(ALinha.substr(0, ALinha.find(' ')));
    if (numero.ends_with('%')) numero.pop_back();
    for (char& c : numero)
        if (c == ',') c = '.';
    double percentual = -1;
    const char* fim = numero.data() + numero.size();
    const auto lido = std::from_chars(numero.data(), fim, percentual, std::chars_format::fixed);
    if (lido.ec == std::errc() && lido.ptr == fim && percentual >= 0 && percentual <= 100) {
        lida.Percentual = percentual;
        const std::size_t branco = ALinha.find(' ');
        if (branco == ALinha.npos) return lida;
        ALinha.remove_prefix(branco + 1);
    }
    lida.Texto = std::string(ALinha);
    return lida;
}

int MostrarAndamento(std::u16string_view ATitulo, std::u16string_view AMensagem, TAmbiente& AAmbiente) {
    TOryUtilsDialogsAndamentoIOP parametros;
    parametros.Titulo = ATitulo;
    parametros.Mensagem = AMensagem;
    const auto andamento = GOryUtilsDialogs->MostrarAndamento(parametros);
    const bool terminou =
        AAmbiente.EntradaEhTerminal ? SeguirTerminal(*andamento) : SeguirEntrada(*andamento, AAmbiente.Entrada);
    return terminou ? smSim : smCancelada;
}

}  // namespace Ory
