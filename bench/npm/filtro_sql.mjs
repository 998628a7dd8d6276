// Nanoseconds of the processor, as the C++ side counts them, per WHERE text of knex for 5, 50 and 500 conditions: the
// same ones as BenchFiltroSql.cpp.
//   node filtro_sql.mjs
import knex from "knex";
import { medir } from "./medir.mjs";

const db = knex({ client: "pg" });
const nomes = ["Ana", "João D'Ávila", "Maria das Dores", "Zé"];

function preencher(consulta, i) {
  switch (i % 5) {
    case 0:
      return consulta.whereRaw("UPPER(f.nome) = UPPER(?)", [nomes[i % 4]]);
    case 1:
      return consulta.where("f.codigo", ">=", i);
    case 2:
      return consulta.where("f.nome", "like", `%${nomes[i % 4]}%`);
    case 3:
      return consulta.whereIn("f.filial", [1, 2, 3, 5, i]);
    default:
      return consulta.whereBetween("f.situacao", ["A", "D'"]);
  }
}

function montar(quantas) {
  const consulta = db("f");
  for (let i = 0; i < quantas; ++i) preencher(consulta, i);
  return consulta;
}

// toString writes the values into the text, as the library does; toSQL leaves them apart.
function repetir(quantas, escrever) {
  const vezes = Math.ceil(5000 / quantas);
  const rodar = () => {
    let escritos = 0;
    for (let vez = 0; vez < vezes; ++vez) escritos += escrever(montar(quantas)).length;
    return escritos;
  };
  return { vezes, rodar };
}

medir(
  [5, 50, 500].flatMap((quantas) => [
    { nome: `Filtro${quantas}_knex-toString`, ...repetir(quantas, (consulta) => consulta.toString()) },
    { nome: `Filtro${quantas}_knex-toSQL`, ...repetir(quantas, (consulta) => consulta.toSQL().sql) },
  ]),
);
