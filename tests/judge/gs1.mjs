// What element strings of GS1 are judged on, as GS1-128 and GS1 DataMatrix, and by whom: symbols of
// the generator, read by zxing. That each element is taken or refused as bwip-js does is the business
// of tests/gs1; those that it took there are the elements here.
import { readFileSync } from 'node:fs';
import { judgeCode128, raw } from './bwip.mjs';
import { GS1_DIFFERENCES } from './differences.mjs';
import { judgeModules, judgeSizeBeside } from './matrix.mjs';
import { pictureOf } from './marks.mjs';
import { zxing } from './readers.mjs';
import { Texts } from './texts.mjs';

const CODE_128 = 5;
const DATA_MATRIX = 100;
const GS1 = 2;
const PIXELS = 4;
const EQUAL_ROWS = 10;
const GS = '\x1d';
const SYMBOLS = {
  [CODE_128]: { name: 'GS1-128', bcid: 'gs1-128', format: 'Code128', identifier: ']C1', most: 48 },
  [DATA_MATRIX]: { name: 'GS1 DataMatrix', bcid: 'gs1datamatrix', format: 'DataMatrix', identifier: ']d2' },
};

// GS1 General Specifications, figure 7.8.5-2: identifiers whose elements have a length of their own.
const PREDEFINED = /^(0[0-4]|1[1-9]|20|3[1-6]|41)/;

// Single elements that the generator took: { ai, value, text }.
function elements(file) {
  const lines = readFileSync(file, 'utf8').split('\n').map((line) => line.split('\t'));
  const taken = lines.filter(([text, verdict]) => verdict === 'ok' && /^\(\d{2,4}\)[^()\\^]+$/.test(text));
  return taken.map(([text]) => {
    const [, ai, value] = /^\((\d+)\)(.*)$/.exec(text);
    return { ai, value, text };
  });
}

// Behind an element that is not the last and has no length of its own stands a separator.
function dataOf(parts) {
  const separated = ({ ai, value }, index) =>
    ai + value + (index + 1 < parts.length && !PREDEFINED.test(ai) ? GS : '');
  return parts.map(separated).join('');
}

function* strings(all, texts, count) {
  for (const element of all) yield [element];
  for (let i = 0; i < count; ++i) {
    const parts = [];
    for (let rest = 1 + texts.below(4); rest > 0; --rest) {
      const element = texts.pick(all);
      if (parts.every(({ ai }) => ai !== element.ai)) parts.push(element);
    }
    yield parts;
  }
}

function cases(share) {
  const texts = new Texts(10);
  const found = [];
  for (const parts of strings(elements(new URL('judged-elements.txt', import.meta.url)), texts, Math.ceil(2000 * share))) {
    const data = dataOf(parts);
    const brackets = parts.map(({ text }) => text).join('');
    for (const symbology of [CODE_128, DATA_MATRIX]) {
      const job = { symbology, input: GS1, shape: 0, picture: PIXELS };
      const text = texts.below(4) === 0 ? data : brackets;
      found.push({ suite: 'gs1', name: SYMBOLS[symbology].name, job, text: Buffer.from(text), brackets, data });
    }
  }
  return found;
}

async function judgeReading({ job, data, answer }) {
  const { format, identifier } = SYMBOLS[job.symbology];
  const found = await zxing(pictureOf(answer.picture, job.symbology === CODE_128 ? EQUAL_ROWS : Infinity), [format]);
  const ours = `${identifier} GS1 ${Buffer.from(data).toString('hex')}`;
  const theirs = found.map((one) => `${one.identifier} ${one.content} ${one.bytes.toString('hex')}`).join(', ') || 'nothing';
  return ours === theirs ? null : { ours, theirs };
}

async function judge(one, say) {
  const { bcid } = SYMBOLS[one.job.symbology];
  const isLinear = one.job.symbology === CODE_128;
  // The partners that an element needs are warnings here: a label may be spread over several symbols.
  const theirs = raw(bcid, one.brackets, { dontlint: true, newencoder: isLinear });
  if (one.answer.status !== 0) {
    say('bwip-js', theirs.refusal ? null : { ours: one.answer.message, theirs: 'a symbol' });
    return;
  }
  if (isLinear) {
    say('bwip-js', judgeCode128(one, theirs));
  } else {
    say('bwip-js, size', theirs.refusal ? undefined : judgeSizeBeside(one, { rows: theirs.pixy, columns: theirs.pixx }));
    say('bwip-js', judgeModules(one));
  }
  if (one.answer.picture !== undefined) say('zxing', await judgeReading(one));
}

export const gs1 = { title: 'element strings', judges: ['bwip-js, size', 'bwip-js', 'zxing'], cases, judge, differences: GS1_DIFFERENCES };
