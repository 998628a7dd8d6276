// Nanoseconds of the processor, as the C++ side counts them, per parse and evaluation of npm expr-eval: the formulas
// and the variables that bench_Formulas writes.
//   bench_Formulas --formulas > FORMULAS; node formulas.mjs FORMULAS
import { readFileSync } from "node:fs";
import { Parser } from "expr-eval";
import { medir } from "./medir.mjs";

const linhas = readFileSync(process.argv[2], "utf8").trimEnd().split("\n").map((linha) => linha.split("\t"));
const variaveis = Object.fromEntries(
  linhas.filter(([nome]) => nome === "variavel").map(([, nome, valor]) => [nome, Number(valor)]),
);
const analisador = new Parser();

medir(
  linhas
    .filter(([nome]) => nome !== "variavel")
    .map(([nome, um, outro, valor]) => {
      const calcular = (texto) => analisador.parse(texto).evaluate(variaveis);
      if (Math.abs(calcular(um) / Number(valor) - 1) > 1e-9) throw new Error(`${um} is not ${valor}`);
      const vezes = Math.ceil(200000 / um.length) * 2;
      const rodar = () => {
        let soma = 0;
        for (let i = 0; i < vezes; i += 2) soma += Math.abs(calcular(um)) + Math.abs(calcular(outro));
        return soma;
      };
      return { nome: `Formula${nome}_expr-eval`, vezes, rodar };
    }),
);
