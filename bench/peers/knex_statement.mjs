// What Knex takes to build the statement that query_bench builds: times on standard output, in the form of Google
// Benchmark's JSON.
// Usage: knex_statement.mjs FOLDER-WITH-NODE_MODULES
import { createRequire } from 'node:module';
import path from 'node:path';

const knex = createRequire(path.resolve(process.argv[2], 'index.js'))('knex')({ client: 'mssql' });

function statement(count) {
  const columns = [];
  for (let i = 1; i <= count; ++i) columns.push(`T${(i % 4) + 1}.Columna${i} as Columna ${i}`);
  return knex('Clientes as T1')
    .select(columns)
    .innerJoin('Pedidos as T2', 'T1.Id', 'T2.Id1')
    .leftJoin('Lineas as T3', 'T2.Id', 'T3.Id2')
    .leftJoin('Articulos as T4', 'T3.Id', 'T4.Id3')
    .where('T1.Baja', 0)
    .orderByRaw('1')
    .toString();
}

function nanoseconds(count) {
  let best = Infinity;
  for (let round = 0; round < 7; ++round) {
    const runs = 20000 / count;
    const start = process.hrtime.bigint();
    for (let i = 0; i < runs; ++i) statement(count);
    best = Math.min(best, Number(process.hrtime.bigint() - start) / runs);
  }
  return best;
}

const benchmarks = [1, 10, 100].map((count) => ({ name: `Knex/${count}`, cpu_time: nanoseconds(count), time_unit: 'ns' }));
console.log(JSON.stringify({ benchmarks, example: statement(10) }));
