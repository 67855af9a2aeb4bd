// The search's index: made here, read by the pages as a script, so that it works without a server too.
import MiniSearch from 'minisearch';
import {readFileSync} from 'node:fs';
import './assets/words.js';

const sounds = JSON.parse(readFileSync(new URL('sounds.json', import.meta.url), 'utf8'));
const {consonants, vowels, signs, latin} = sounds;
const keyOf = globalThis.pozhilWords({consonants, vowels, signs, latin}).keyOf;

/** The index as a script. `sections` are [{url, page, title, text, names, code}]. */
export function indexScript(sections) {
    const index = new MiniSearch({
        fields: ['title', 'text', 'names', 'code'],
        storeFields: ['url', 'page', 'title', 'text', 'names'],
        tokenize: globalThis.pozhilWords.split,
        processTerm: keyOf,
    });
    index.addAll(sections.map((section, id) => ({id, ...section})));
    const data = {sounds: {consonants, vowels, signs, latin}, index: JSON.stringify(index)};
    return `globalThis.pozhilIndex = ${JSON.stringify(data)};\n`;
}
