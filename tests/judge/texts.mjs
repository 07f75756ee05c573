// Texts from a seed, the same on every machine.

// The generator mulberry32: 32 bits of state, enough for texts.
export class Texts {
  constructor(seed) {
    this.state = seed >>> 0;
  }

  next() {
    this.state = (this.state + 0x6d2b79f5) >>> 0;
    let bits = this.state;
    bits = Math.imul(bits ^ (bits >>> 15), bits | 1);
    bits ^= bits + Math.imul(bits ^ (bits >>> 7), bits | 61);
    return (bits ^ (bits >>> 14)) >>> 0;
  }

  below(limit) {
    return this.next() % limit;
  }

  pick(list) {
    return list[this.below(list.length)];
  }

  // Of so many characters of the alphabet.
  of(alphabet, length) {
    let text = '';
    while (text.length < length) text += alphabet[this.below(alphabet.length)];
    return text;
  }

  between(alphabet, shortest, longest) {
    return this.of(alphabet, shortest + this.below(longest - shortest + 1));
  }

  // Runs of characters of a class each, as real texts have them.
  runs(classes, length) {
    let text = '';
    while (text.length < length) text += this.between(this.pick(classes), 1, 8);
    return text.slice(0, length);
  }
}

export const DIGITS = '0123456789';
export const CAPITALS = 'ABCDEFGHIJKLMNOPQRSTUVWXYZ';
export const SMALL = 'abcdefghijklmnopqrstuvwxyz';
export const bytes = (first, last) => {
  let text = '';
  for (let byte = first; byte <= last; ++byte) text += String.fromCharCode(byte);
  return text;
};
