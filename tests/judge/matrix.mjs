// What Data Matrix is judged on, and by whom: no size larger than the generator's, modules and error
// correction those that it draws of our codewords, the text read from strokes and from dots.
import { raw } from './bwip.mjs';
import { MATRIX_DIFFERENCES } from './differences.mjs';
import { pictureOf } from './marks.mjs';
import { zxing } from './readers.mjs';
import { bytes, CAPITALS, DIGITS, SMALL, Texts } from './texts.mjs';

const DATA_MATRIX = 100;
const BYTES = 1;
const UTF8 = 0;
const PIXELS = 4;
const SPIRAL = 5;  // widens the symbol by a gap, which has to be a small part of a module
const DOTS = 6;
const DOT = 0.8;  // of a module
const SHAPES = { SQUARE: 0, RECTANGLE: 1, ANY: 2, DMRE: 4 };
const INDUSTRY_144 = 16;

// The classes of characters between which the encodation has to choose, and one of each.
const CLASSES = [
  DIGITS, CAPITALS, SMALL, ' ', '\r*>', `${bytes(33, 41)}+,-./:;<=?@[\\]^`, `${bytes(0, 12)}${bytes(14, 31)}_\`{|}~\x7f`, bytes(128, 255),
];
const ONE_OF_EACH = ['1', 'A', 'a', ' ', '*', '!', '~', '\x01', '\xe9'];

const SIZES = `10x10 12x12 14x14 16x16 18x18 20x20 22x22 24x24 26x26 32x32 36x36 40x40 44x44 48x48 52x52 64x64 72x72 80x80 88x88
  96x96 104x104 120x120 132x132 144x144 8x18 8x32 12x26 12x36 16x36 16x48
  8x48 8x64 8x80 8x96 8x120 8x144 12x64 12x88 16x64 20x36 20x44 20x64 22x48 24x48 24x64 26x40 26x48 26x64`
  .split(/\s+/).map((size) => size.split('x').map(Number));
const FIRST_DMRE = 30;

const latin1 = (text) => Buffer.from(text, 'latin1');
const hex = (data) => Buffer.from(data).toString('hex');

function* mixtures(texts, count) {
  for (let i = 0; i < count; ++i) {
    const length = 1 + texts.below(i % 10 === 0 ? 300 : 40);
    const classes = [texts.pick(CLASSES), texts.pick(CLASSES), texts.pick(CLASSES)];
    const shape = [SHAPES.SQUARE, SHAPES.SQUARE, SHAPES.RECTANGLE, SHAPES.ANY, SHAPES.DMRE][i % 5];
    yield { suite: 'mixtures', job: { shape, picture: i % 2 === 0 ? PIXELS : 0 }, text: texts.runs(classes, length) };
  }
}

// As parts are marked: serials, part numbers, dates, links, messages.
function* real(texts, count) {
  const upper = DIGITS + CAPITALS;
  const kinds = [
    () => `SN${texts.of(DIGITS, 8)}`,
    () => `${texts.of(DIGITS, 4)}-${texts.of(DIGITS, 3)}-${texts.of(CAPITALS, 2)}`,
    () => `1P${texts.between(upper, 5, 12)}\x1dS${texts.of(DIGITS, 10)}\x1d18V${texts.of(upper, 5)}`,
    () => `https://id.example.com/01/${texts.of(DIGITS, 14)}/21/${texts.between(upper, 4, 12)}`,
    () => `01${texts.of(DIGITS, 14)}17${texts.of(DIGITS, 6)}10${texts.between(upper, 3, 10)}`,
    () => `Lot ${texts.of(DIGITS, 6)} ${texts.of(SMALL, 8)}`,
    () => `${texts.of(CAPITALS, 3)}*${texts.of(DIGITS, 5)}>${texts.of(CAPITALS, 4)}`,
    () => `Gr\xf6\xdfe ${texts.of(DIGITS, 2)} \xb1 0,${texts.of(DIGITS, 1)} mm`,
  ];
  for (let i = 0; i < count; ++i) yield { suite: 'real', job: { shape: i % 3, picture: PIXELS }, text: texts.pick(kinds)() };
}

// Every sequence of one character of each class.
function* sequences(length, texts, share) {
  const count = ONE_OF_EACH.length ** length;
  for (let n = 0; n < count; ++n) {
    if (share < 1 && texts.below(1000) >= share * 1000) continue;
    let text = '';
    for (let i = 0, rest = n; i < length; ++i, rest = Math.floor(rest / ONE_OF_EACH.length)) text += ONE_OF_EACH[rest % ONE_OF_EACH.length];
    yield { suite: 'sequences', job: { picture: n % 4 === 0 ? PIXELS : 0 }, text };
  }
}

// One class to the end of each size and beyond it.
function* ends(texts, share) {
  for (const own of CLASSES) {
    for (let length = 1; length <= 130; ++length) {
      if (share < 1 && texts.below(1000) >= share * 1000) continue;
      yield { suite: 'ends', job: { picture: length % 3 === 0 ? PIXELS : 0 }, text: texts.of(own, length) };
      yield { suite: 'ends', job: { picture: 0 }, text: texts.of(own, length) + texts.of(texts.pick(CLASSES), 1 + texts.below(2)) };
    }
  }
}

function* binary(texts, share) {
  const step = Math.ceil(7 / share);
  for (let length = 1; length <= 1556; length += length < 20 || (length > 244 && length < 256) || length > 1552 ? 1 : step) {
    yield { suite: 'binary', job: { picture: PIXELS }, text: texts.of(bytes(0, 255), length) };
  }
}

// Every size, with few and with many codewords, as strokes and as dots, plain and inverted.
function* everySize(texts) {
  const looks = [{ pattern: 0 }, { pattern: 1 }, { pattern: 2 }, { pattern: 3 }, { pattern: SPIRAL, gap: 0.1, picture: 10 }, { pattern: DOTS },
                 { pattern: DOTS, cell: DOT }, { pattern: 0, invert: 1 }];
  for (const [rows, columns] of SIZES) {
    const modules = (rows - 2) * (columns - 2);
    for (const [index, look] of looks.entries()) {
      for (const flags of rows === 144 ? [0, INDUSTRY_144] : [0]) {
        const length = 1 + Math.floor(((modules / 8) * 0.3 * (index + 1)) / looks.length);
        const text = texts.of(index % 2 === 0 ? CAPITALS : DIGITS + SMALL, length);
        yield { suite: 'sizes', job: { rows, columns, flags, picture: PIXELS, ...look }, text };
      }
    }
  }
}

const RS = '\x1e';
const GS = '\x1d';
const EOT = '\x04';
const ENVELOPES = { 5: '05', 6: '06', 12: '12' };

function* envelopes(texts, count) {
  for (let i = 0; i < count; ++i) {
    const envelope = texts.pick([5, 6, 12]);
    const fields = Array.from({ length: 1 + texts.below(3) }, () => texts.between(DIGITS + CAPITALS, 4, 12));
    const text = fields.join(GS);
    yield { suite: 'envelopes', job: { envelope, shape: i % 3, picture: PIXELS }, text, message: `[)>${RS}${ENVELOPES[envelope]}${GS}${text}${RS}${EOT}` };
  }
}

const FNC1_SECOND = 2;
const READER_PROGRAMMING = 1024;
const CODEWORDS = 5;
const ECIS = [1, 3, 9, 26, 126, 127, 899, 16382, 16383, 999999];

// Two codewords of 1 to 254 are the file of a message; readers report them as one number.
const fileOf = (id) => (Math.floor(id / 254) + 1) * 256 + (id % 254) + 1;

// What stands in front of the text: symbols of one message, reader programming, FNC1, an ECI; codewords as they are.
function* heads(texts, count) {
  for (let i = 0; i < count; ++i) {
    const text = texts.of(CAPITALS, 1) + texts.between(DIGITS + CAPITALS + SMALL, 3, 20);
    const parts = 2 + texts.below(15);
    const part = 1 + texts.below(parts);
    const id = texts.below(64516);
    const heading = [
      { job: { part, parts, part_id: id }, part: [part - 1, parts, fileOf(id)] },
      { job: { flags: READER_PROGRAMMING }, isProgramming: true },
      { job: { flags: FNC1_SECOND }, identifier: ']d3' },
      { job: { eci: texts.pick(ECIS) }, eci: true },
      { job: { input: CODEWORDS }, isUnread: true },
    ][i % 5];
    yield { suite: 'heads', hasNoSize: true, text, ...heading, job: { picture: heading.isUnread ? 0 : PIXELS, shape: i % 3, ...heading.job } };
  }
}

function* characterSets(texts, count) {
  const greek = 'ΑΒΓΔαβγδ';
  const classes = [greek, 'äöüß€', DIGITS, CAPITALS, '漢字'];
  for (let i = 0; i < count; ++i) {
    const text = texts.runs(classes.map((list) => [...list].join('')), 1 + texts.below(20)) + texts.pick([...greek]);
    yield { suite: 'UTF-8', job: { input: UTF8, picture: PIXELS }, text, isUnicode: true, eci: true };
  }
}

function cases(share) {
  const of = (count) => Math.ceil(count * share);
  const texts = new Texts(16022);
  const found = [
    ...mixtures(texts, of(6000)), ...real(texts, of(2000)), ...sequences(1, texts, 1), ...sequences(2, texts, 1),
    ...sequences(3, texts, 1), ...sequences(4, texts, share), ...ends(texts, share), ...binary(texts, share), ...everySize(texts),
    ...envelopes(texts, of(600)), ...heads(texts, of(1000)), ...characterSets(texts, of(300)),
  ];
  return found.map((one) => ({
    ...one,
    name: `Data Matrix, ${one.suite}`,
    job: { symbology: DATA_MATRIX, input: BYTES, ...one.job },
    text: one.isUnicode ? Buffer.from(one.text, 'utf8') : latin1(one.text),
    message: one.message && latin1(one.message),
  }));
}

const areaOf = ({ rows, columns }) => rows * columns;

// The smallest of the judge's symbols of the shapes that the job allows; null where all are too small.
function smallest(text, shape) {
  const formats = shape === SHAPES.SQUARE ? ['square'] : shape === SHAPES.RECTANGLE ? ['rectangle'] : ['square', 'rectangle'];
  const options = formats.map((format) => ({ format }));
  if (shape === SHAPES.DMRE) options.push({ format: 'rectangle', dmre: true });
  const symbols = options.map((option) => raw('datamatrix', text, { binarytext: true, ...option }))
    .filter((symbol) => !symbol.refusal).map(({ pixx, pixy }) => ({ rows: pixy, columns: pixx }));
  return symbols.sort((a, b) => areaOf(a) - areaOf(b))[0] ?? null;
}

// theirs: rows and columns.
export function judgeSizeBeside({ answer }, theirs) {
  if (answer.status === 0 && areaOf(answer) === areaOf(theirs)) return null;
  const isSmaller = answer.status === 0 && areaOf(answer) < areaOf(theirs);
  return { isSmaller, ours: answer.status === 0 ? `${answer.rows}x${answer.columns}` : answer.message, theirs: `${theirs.rows}x${theirs.columns}` };
}

function judgeSize({ job, text, message, answer }) {
  const theirs = smallest((message ?? text).toString('latin1'), job.shape ?? SHAPES.SQUARE);
  return theirs === null ? undefined : judgeSizeBeside({ answer }, theirs);  // null: too long for it, or for the shape
}

// Data codewords with their pads: error correction, placement and finder patterns are the judge's.
export function judgeModules({ answer }) {
  const codewords = [...answer.values.subarray(0, answer.capacity)].map((value) => `^${String(value).padStart(3, '0')}`).join('');
  const { rows, columns } = answer;
  const options = { raw: true, rows, columns, dmre: true, format: rows === columns ? 'square' : 'rectangle' };
  const theirs = raw('datamatrix', codewords, options);
  const drawn = theirs.refusal ?? theirs.pixs.join('');
  return drawn === answer.modules ? null : { ours: answer.modules, theirs: drawn };
}

const isDmre = ({ rows, columns }) => SIZES.findIndex(([r, c]) => r === rows && c === columns) >= FIRST_DMRE;

const NO_PART = [-1, -1, ''];

// Symbology identifier without the ECI's part in it, what the content is, what stands in front of it, and the bytes.
async function judgeReading({ job, text, message, eci = false, identifier = ']d1', part, isProgramming = false, answer }) {
  const found = await zxing(pictureOf(answer.picture), ['DataMatrix'], job.cell ? { tryDenoise: true } : {});
  const wordsOf = (...words) => words.join(' ');
  const ours = wordsOf(isDmre(answer) ? ']d7' : identifier, message ? 'ISO15434' : 'text', eci, part ?? NO_PART, isProgramming, hex(message ?? text));
  const theirs = found.map((one) => wordsOf(one.identifier, one.content === 'ISO15434' ? one.content : 'text', one.hasEci,
                                            one.part, one.extra.ReaderInit === true, hex(one.bytes))).join(', ') || 'nothing';
  return ours === theirs ? null : { ours, theirs };
}

async function judge(one, say) {
  if (one.job.rows === undefined && !one.isUnicode && !one.hasNoSize) say('bwip-js, size', judgeSize(one));
  if (one.answer.status !== 0) {
    say('bwip-js', { ours: one.answer.message, theirs: 'a symbol' });
    return;
  }
  say('bwip-js', judgeModules(one));
  if (one.answer.picture !== undefined) say('zxing', await judgeReading(one));
}

export const matrix = { title: 'texts', judges: ['bwip-js, size', 'bwip-js', 'zxing'], cases, judge, differences: MATRIX_DIFFERENCES };
