#include "oryutils/changes/UnOryUtilsClasseMetodosAnonimos.hpp"
#include "oryutils/changes/UnOryUtilsClasses.hpp"

#include <gtest/gtest.h>

namespace OryUtils {
namespace {

struct TBase : TObjeto {
    void Tocar(TObjeto*) { ++Toques; }
    void Bater(TObjeto*) { --Toques; }
    void Contar(TObjeto*, int AQuantos) { Toques += AQuantos; }
    int Toques = 0;
};
struct TDerivada : TBase {};

TEST(ComparouMetodos, CodigoEObjeto) {
    TBase um, outro;
    TDerivada derivada;
    using TNotificacao = TEventoNotificacao;
    using TContagem = TEvento<TObjeto*, int>;
    const auto tocar = TNotificacao::De<&TBase::Tocar>(um);
    TConverteMetodoEvento conversor;
    const TAcaoEvento acao = [](TObjeto*) {};
    const auto primeiro = conversor.ConverterParaEvento(nullptr, acao);
    const auto segundo = conversor.ConverterParaEvento(nullptr, acao);
    const struct {
        TMetodo A, B;
        bool Iguais;
        const char* Porque;
    } casos[] = {
        {tocar, TNotificacao::De<&TBase::Tocar>(um), true, "bound twice"},
        {tocar, TNotificacao::De<&TBase::Tocar>(outro), false, "another object"},
        {tocar, TNotificacao::De<&TBase::Bater>(um), false, "another method"},
        {tocar, TNotificacao(), false, "one is empty"},
        {TNotificacao(), TContagem(), true, "both are empty"},
        {tocar, TContagem::De<&TBase::Contar>(um), false, "another kind of event, the same object"},
        {TNotificacao::De<&TBase::Tocar>(derivada), TNotificacao::De<&TBase::Tocar>(static_cast<TBase&>(derivada)),
         true, "the same method through the derived class and through its base"},
        {TNotificacao::De<&TDerivada::Tocar>(derivada), TNotificacao::De<&TBase::Tocar>(derivada), true,
         "an inherited method under either class's name"},
        {primeiro, segundo, false, "one closure, two associated objects"},
        {primeiro, TEventoNotificacao(primeiro), true, "a copy of an event"},
    };
    for (const auto& caso : casos) {
        EXPECT_EQ(ComparouMetodos(caso.A, caso.B), caso.Iguais) << caso.Porque;
        EXPECT_EQ(TOryUtilsClasses::ComparouMetodos(caso.B, caso.A), caso.Iguais) << caso.Porque;
    }
    EXPECT_EQ(TMetodo(primeiro).Codigo, TMetodo(segundo).Codigo);
}

TEST(ConverteMetodoEvento, EventoChamaOFechamentoComORemetente) {
    TConverteMetodoEvento conversor;
    TBase remetente;
    TObjeto* veio = nullptr;
    TAcaoEvento acao = [&, vezes = 0](TObjeto* ASender) mutable {
        veio = ASender;
        remetente.Toques = ++vezes;
    };
    const auto um = conversor.ConverterParaEvento(&conversor, acao);
    const auto outro = conversor.ConverterParaEvento(nullptr, acao);
    acao = nullptr;
    um(&remetente);
    outro(&remetente);
    EXPECT_EQ(veio, &remetente);
    EXPECT_EQ(remetente.Toques, 2) << "both events call the one closure, which keeps its state";
    um(nullptr);
    EXPECT_EQ(veio, nullptr);

    const auto nada = conversor.ConverterParaEvento(nullptr, {});
    EXPECT_TRUE(nada) << "it is assigned";
    nada(&remetente);
    conversor.ConverterParaEvento(nullptr, std::function<void(TObjeto*)>())(&remetente);

    TConverteMetodoEvento::TEventoAssociado associado;
    associado.NotificarEvento(&remetente);
    TEventoNotificacao evento;
    associado.CriarEvento([&](TObjeto*) { remetente.Toques = 50; }, evento);
    associado.CriarEvento([&](TObjeto*) { remetente.Toques = 60; }, evento);
    EXPECT_EQ(evento.GetObjeto(), &associado);
    evento(nullptr);
    EXPECT_EQ(remetente.Toques, 60) << "the second closure took the first one's place";
}

TEST(ConverteMetodoEvento, LimparLiberaOsFechamentosTambemDeDentroDeles) {
    const auto capturado = std::make_shared<int>(0);
    TConverteMetodoEvento conversor;
    for (int i = 0; i < 10; ++i) conversor.ConverterParaEvento(nullptr, [capturado](TObjeto*) {});
    EXPECT_EQ(capturado.use_count(), 11);
    conversor.LimparListaEventos();
    EXPECT_EQ(capturado.use_count(), 1);
    conversor.LimparListaEventos();

    const auto ultimo = conversor.ConverterParaEvento(nullptr, [&conversor, capturado](TObjeto*) {
        conversor.LimparListaEventos();
        *capturado = 7;  // the closure is still there to see it
    });
    ultimo(nullptr);
    EXPECT_EQ(*capturado, 7);
    EXPECT_EQ(capturado.use_count(), 1);

    // A closure whose end makes another event on the same converter.
    struct TNoFim {
        TConverteMetodoEvento& Conversor;
        std::shared_ptr<int> Guarda;
        ~TNoFim() {
            Conversor.ConverterParaEvento(nullptr, [guarda = Guarda](TObjeto*) {});
        }
    };
    conversor.ConverterParaEvento(nullptr, [fim = std::make_shared<TNoFim>(conversor, capturado)](TObjeto*) {});
    conversor.LimparListaEventos();
    EXPECT_EQ(capturado.use_count(), 2) << "the new event stays";
    conversor.LimparListaEventos();
    EXPECT_EQ(capturado.use_count(), 1);
}

TEST(Componente, DonoLiberaOsSeusDoMaisNovoAoMaisVelho) {
    struct TMarcado : TComponente {
        TMarcado(int AMarca, std::vector<int>& AFim) : Marca(AMarca), Fim(AFim) {}
        ~TMarcado() override { Fim.push_back(Marca); }
        int Marca;
        std::vector<int>& Fim;
    };
    std::vector<int> fim;
    {
        TComponente dono;
        auto& um = dono.Criar<TMarcado>(1, fim);
        dono.Criar<TMarcado>(2, fim);
        um.Criar<TMarcado>(11, fim);
        EXPECT_EQ(um.GetOwner(), &dono);
        EXPECT_EQ(&dono.GetComponent(0), &um);
        EXPECT_THROW(static_cast<void>(dono.GetComponent(2)), EListError);
        EXPECT_THROW(static_cast<void>(dono.GetComponent(-1)), EListError);

        auto solto = std::make_unique<TMarcado>(3, fim);
        TMarcado* const endereco = solto.get();
        std::unique_ptr<TComponente> passagem = std::move(solto);
        dono.Inserir(std::move(passagem));
        EXPECT_THROW(static_cast<void>(um.Retirar(*endereco)), Exception) << "another one's";
        passagem = dono.Retirar(*endereco);
        EXPECT_EQ(passagem->GetOwner(), nullptr);
        EXPECT_EQ(dono.GetComponentCount(), 2);
        EXPECT_THROW(dono.Inserir({}), Exception);

        // A ring would free nobody.
        auto topo = std::make_unique<TComponente>();
        auto& meio = topo->Criar<TComponente>();
        EXPECT_THROW(meio.Inserir(std::move(topo)), Exception);
        ASSERT_NE(topo, nullptr) << "refused: still the caller's";

        delete &um;  // by hand, as hosts do: the owner forgets it
        EXPECT_EQ(dono.GetComponentCount(), 1);
        EXPECT_EQ(fim, (std::vector<int>{1, 11}));
    }
    EXPECT_EQ(fim, (std::vector<int>{1, 11, 3, 2}));
}

// An owner takes its converters with it, and they their closures; one that is taken out lives on.
TEST(ConverteMetodoEvento, VaiComADona) {
    const auto capturado = std::make_shared<int>(0);
    std::unique_ptr<TComponente> retirado;
    TEventoNotificacao evento;
    {
        TComponente dono;
        for (int i = 0; i < 3; ++i) {
            auto& conversor = TConverteMetodoEvento::Create(dono);
            evento = conversor.ConverterParaEvento(&dono, [capturado](TObjeto*) { ++*capturado; });
        }
        EXPECT_EQ(capturado.use_count(), 4);
        retirado = dono.Retirar(dono.GetComponent(2));
    }
    EXPECT_EQ(capturado.use_count(), 2);
    evento(nullptr);
    EXPECT_EQ(*capturado, 1);
    retirado.reset();
    EXPECT_EQ(capturado.use_count(), 1);
}

}  // namespace
}  // namespace OryUtils
