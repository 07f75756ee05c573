// Has marks judged: judge.mjs PROGRAM [--share NUMBER] [--only NAME] [--sample FILE]. PROGRAM is
// mark_jobs; NAME is that of a suite or a symbology. FILE gets a sample of what the generator drew,
// for JudgedMarksTest.cpp. Exit code 1: a difference that differences.mjs does not explain.
import { writeFileSync } from 'node:fs';
import { availableParallelism } from 'node:os';
import { parseArgs } from 'node:util';
import { isMainThread, parentPort, Worker, workerData } from 'node:worker_threads';
import { drawnBy } from './bwip.mjs';
import { linear } from './linear.mjs';
import { mark } from './marks.mjs';
import { matrix } from './matrix.mjs';
import { prepare } from './readers.mjs';

const FAMILIES = [linear, matrix];
const DIFFERENCES = FAMILIES.flatMap(({ differences }, family) => differences.map((row) => ({ ...row, family })));
const BATCH = 500;
const SAMPLED_OF_A_KIND = 15;
const SAMPLED_LENGTH = 24;
const SHOWN_OF_A_KIND = 3;

function explain(judge, one, difference) {
  const text = one.text.toString('latin1');
  return DIFFERENCES.findIndex((row) =>
    row.family === one.family && row.judge === judge && row.when({ ...one, text, ...difference }));
}

class Tally {
  constructor() {
    this.counts = {};  // by name of the case, then by judge: { agreed, explained }
    this.met = DIFFERENCES.map(() => 0);
    this.differences = [];
  }

  of(name, judge) {
    const row = (this.counts[name] ??= {});
    return (row[judge] ??= { agreed: 0, explained: 0 });
  }

  add(judge, one, difference) {
    if (difference === undefined) return;
    const counts = this.of(one.name, judge);
    if (difference === null) {
      ++counts.agreed;
      return;
    }
    const reason = explain(judge, one, difference);
    if (reason >= 0) {
      ++this.met[reason];
      ++counts.explained;
    } else {
      const { suite, name, job, text, answer } = one;
      this.differences.push({ judge, suite, name, job, text: text.toString('latin1'), message: answer.message, ...difference });
    }
  }

  join(other) {
    for (const [name, row] of Object.entries(other.counts)) {
      for (const [judge, { agreed, explained }] of Object.entries(row)) {
        this.of(name, judge).agreed += agreed;
        this.of(name, judge).explained += explained;
      }
    }
    other.met.forEach((count, index) => (this.met[index] += count));
    this.differences.push(...other.differences);
  }
}

async function judgeAll(cases, program) {
  await prepare();
  const tally = new Tally();
  for (let at = 0; at < cases.length; at += BATCH) {
    const batch = cases.slice(at, at + BATCH);
    const answers = mark(program, batch);
    for (let i = 0; i < batch.length; ++i) {
      const one = { ...batch[i], answer: answers[i] };
      await FAMILIES[one.family].judge(one, (judge, difference) => tally.add(judge, one, difference));
    }
  }
  return tally;
}

function casesOf({ share, only }) {
  const all = FAMILIES.flatMap(({ cases }, family) => cases(share).map((one) => ({ ...one, family })));
  return only === undefined ? all : all.filter((one) => one.suite === only || one.name.includes(only));
}

function inWorkers(options) {
  const workers = availableParallelism();
  const results = Array.from({ length: workers }, (_, index) => new Promise((resolve, reject) => {
    const worker = new Worker(new URL(import.meta.url), { workerData: { ...options, index, workers } });
    worker.once('message', resolve).once('error', reject);
  }));
  return Promise.all(results);
}

// A table of a family: in pairs of columns what a judge agreed with and what has a reason.
function printFamily({ title, judges, names }, counts) {
  const cellsOf = (row) => row.map((one) => (one ? `${one.agreed} | ${one.explained}` : '- | -')).join(' | ');
  const rows = Object.entries(counts).filter(([name]) => names.has(name));
  if (rows.length === 0) return;
  console.log(`| ${title} | ${judges.map((judge) => `${judge} | explained`).join(' | ')} |`);
  console.log(`|---|${judges.map(() => '---:|---:|').join('')}`);
  const sums = judges.map(() => ({ agreed: 0, explained: 0 }));
  for (const [name, row] of rows) {
    const cells = judges.map((judge) => row[judge]);
    cells.forEach((one, index) => {
      sums[index].agreed += one?.agreed ?? 0;
      sums[index].explained += one?.explained ?? 0;
    });
    console.log(`| ${name} | ${cellsOf(cells)} |`);
  }
  console.log(`| together | ${cellsOf(sums)} |`);
}

function print(tally, cases) {
  FAMILIES.forEach((family, index) => {
    const names = new Set(cases.filter((one) => one.family === index).map((one) => one.name));
    printFamily({ ...family, names }, tally.counts);
  });
  DIFFERENCES.forEach((row, index) => console.log(`${tally.met[index]} x ${row.judge}, ${row.what}: ${row.why}`));
}

// The first few of each judge and symbology.
function printDifferences(differences) {
  const shown = {};
  for (const { judge, suite, name, job, text, message, ours, theirs } of differences) {
    const kind = `${judge}, ${name}`;
    shown[kind] = (shown[kind] ?? 0) + 1;
    if (shown[kind] > SHOWN_OF_A_KIND) continue;
    console.log(`DIFFERS ${kind}, ${suite}: ${JSON.stringify(text)} ${JSON.stringify(job)}`);
    console.log(`  ours   ${ours}${message && message !== ours ? ` (${message})` : ''}\n  theirs ${theirs}`);
  }
  for (const [kind, count] of Object.entries(shown)) console.log(`${count} of ${kind}`);
}

// Some short texts of each symbology and suite, as the generator drew or refused them.
function writeSample(file, cases, program) {
  const kinds = {};
  for (const one of cases.filter(({ text }) => text.length <= SAMPLED_LENGTH)) {
    (kinds[`${one.suite} ${one.job.symbology}`] ??= []).push(one);
  }
  const sampled = Object.values(kinds).flatMap((kind) => {
    const step = kind.length / SAMPLED_OF_A_KIND;
    return kind.filter((_, index) => step <= 1 || Math.floor(index / step) !== Math.floor((index - 1) / step));
  });
  const answers = mark(program, sampled);
  const lines = sampled.flatMap(({ job, text }, index) => {
    const drawn = drawnBy({ job, text, answer: answers[index] });
    return drawn ? [[job.symbology, job.flags ?? 0, job.check ?? 0, job.addon_gap ?? 0, text.toString('hex') || '-', drawn].join(' ')] : [];
  });
  const head = '# Drawn by bwip-js 4.11.4 (scripts/judge --sample): symbology, flags, check, addon_gap, text, elements or refusal';
  writeFileSync(file, [head, ...new Set(lines)].join('\n') + '\n');
  console.log(`${file}: ${lines.length} marks`);
}

async function main() {
  const { values, positionals } = parseArgs({
    allowPositionals: true, options: { share: { type: 'string', default: '1' }, only: { type: 'string' }, sample: { type: 'string' } },
  });
  const options = { program: positionals[0], share: Number(values.share), only: values.only };
  if (values.sample) {
    writeSample(values.sample, casesOf(options).filter((one) => FAMILIES[one.family] === linear), options.program);
    return;
  }
  const began = Date.now();
  const tally = new Tally();
  for (const part of await inWorkers(options)) tally.join(part);
  const cases = casesOf(options);
  print(tally, cases);
  const isWhole = values.only === undefined && options.share >= 1;
  const unmet = isWhole ? DIFFERENCES.filter((_, index) => tally.met[index] === 0) : [];
  for (const row of unmet) console.log(`nothing met: ${row.judge}, ${row.what}`);
  printDifferences(tally.differences);
  const seconds = Math.round((Date.now() - began) / 1000);
  const failures = tally.differences.length + unmet.length;
  console.log(`judge: ${failures === 0 ? 'agreed' : 'FAILED'}, ${cases.length} texts, ${tally.differences.length} differences not explained, ${unmet.length} reasons not met, ${seconds} s`);
  process.exitCode = failures === 0 ? 0 : 1;
}

if (isMainThread) {
  await main();
} else {
  const { index, workers } = workerData;
  const cases = casesOf(workerData).filter((_, at) => at % workers === index);
  const { counts, met, differences } = await judgeAll(cases, workerData.program);
  parentPort.postMessage({ counts, met, differences });
}
