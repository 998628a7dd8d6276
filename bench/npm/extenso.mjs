// Nanoseconds of the processor, as the C++ side counts them, per amount in words of npm extenso: the same amounts as
// BenchExtenso.cpp.
//   node extenso.mjs
import extenso from "extenso";
import { medir } from "./medir.mjs";

const opcoes = { mode: "currency", currency: { type: "BRL" }, number: { decimal: "dot" } };
const valores = Array.from({ length: 1000 }, (_, i) => (((i + 1) * 7919371) % 100000000) / 100).map((v) => v.toFixed(2));
if (extenso("1234.56", opcoes) !== "mil duzentos e trinta e quatro reais e cinquenta e seis centavos")
  throw new Error(`not the amount in words: ${extenso("1234.56", opcoes)}`);

medir([
  {
    nome: "Extenso_extenso",
    vezes: valores.length,
    rodar: () => valores.reduce((tamanho, valor) => tamanho + extenso(valor, opcoes).length, 0),
  },
]);
