#include "files/LogApoio.hpp"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

constexpr std::size_t CPrefixo = alignof(std::max_align_t);
std::size_t GEmUso = 0;
std::size_t GMaximo = 0;

void Devolver(void* AMemoria) noexcept {
    if (!AMemoria) return;
    void* const inicio = static_cast<char*>(AMemoria) - CPrefixo;
    GEmUso -= *static_cast<std::size_t*>(inicio);
    std::free(inicio);
}

}  // namespace

// Each piece of memory has its size before it. Not inlined: the optimizer would see "new" freed by "free".
[[gnu::noinline]] void* operator new(std::size_t ATamanho) {
    void* const inicio = std::malloc(CPrefixo + ATamanho);
    if (!inicio) throw std::bad_alloc();
    *static_cast<std::size_t*>(inicio) = ATamanho;
    GMaximo = std::max(GMaximo, GEmUso += ATamanho);
    return static_cast<char*>(inicio) + CPrefixo;
}
// The sanitizers have one of their own, whose memory this delete would not know.
[[gnu::noinline]] void* operator new(std::size_t ATamanho, const std::nothrow_t&) noexcept try {
    return ::operator new(ATamanho);
} catch (const std::bad_alloc&) {
    return nullptr;
}
[[gnu::noinline]] void operator delete(void* AMemoria) noexcept { Devolver(AMemoria); }
[[gnu::noinline]] void operator delete(void* AMemoria, std::size_t) noexcept { Devolver(AMemoria); }

namespace {

using namespace OryUtils;

TEST(LogMemoria, UmLogExistenteCustaPoucoMaisQueOSeuTamanho) {
    const struct {
        const char *Porque, *Linha;
    } casos[] = {
        {"lines of a batch file", "[21/11/2026 07:03:42]: Cliente 1520 importado"},
        {"with accents", "[21/11/2026 07:03:42]: Cliente 1521 recusado: CPF inválido, situação não encontrada"},
        {"bytes that are no UTF-8", "[21/11/2026 07:03:42]: cora\xE7\xE3o"},
        {"short lines", "0123456789"},
    };
    constexpr std::size_t CTamanho = 4 << 20;
    constexpr std::size_t CConstante = 256 << 10;
    const TPastaTemporaria pasta;
    for (const auto& c : casos) {
        SCOPED_TRACE(c.Porque);
        std::string texto;
        while (texto.size() < CTamanho) texto.append(c.Linha) += '\n';
        GravarBytes(pasta / "G.log", texto);
        TAmbienteDeTeste ambiente;
        const std::size_t antes = GMaximo = GEmUso;
        TLogDeTeste log(pasta.Nome("G"), ambiente, mgReescrever);
        log.SetUsarArquivoLogExistente(true);
        for (int vez = 1; vez <= 2; ++vez) {
            log.IniciarLog();
            log.FinalizarLog();
            EXPECT_TRUE(log.EstahSalvo());
            EXPECT_LE(GMaximo - antes, texto.size() * 3 / 2 + CConstante) << "run " << vez << " of the same log";
        }
    }
}

}  // namespace
