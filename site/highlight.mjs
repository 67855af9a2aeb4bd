// Colours programs: by the grammar that is made of the compiler's word tables, and by those of the two
// languages that the documents show beside. Which colour a class has, the style tells.
import {createHighlighterCore} from '@shikijs/core';
import {createJavaScriptRegexEngine} from '@shikijs/engine-javascript';
import python from '@shikijs/langs/python';
import shell from '@shikijs/langs/shellscript';
import {readFileSync} from 'node:fs';

const grammar = JSON.parse(readFileSync(new URL('../editors/textmate/pozhil.tmLanguage.json', import.meta.url), 'utf8'));

/** By the beginnings of a scope: the class. Of two that fit, the longer one counts. */
const classes = [
    ['keyword', 'keyword'], ['storage', 'keyword'],
    ['keyword.other.section', 'section'],
    ['keyword.operator', 'sign'], ['keyword.operator.word', 'operator'], ['keyword.operator.logical.python', 'operator'],
    ['support.function', 'call'], ['support.class.widget', 'widget'],
    ['support.type.property-name', 'property'], ['support.constant.value', 'value'],
    ['string', 'text'], ['constant.character.escape', 'escape'],
    ['constant.numeric', 'number'], ['constant.language', 'number'],
    ['comment', 'comment'],
    ['entity.name.function', 'definition'], ['entity.name.type', 'definition'], ['entity.name.command.shell', 'call'],
    ['variable.language', 'receiver'],
];

// A token is told apart by its colour only, so each row of the table has a colour of its own.
const colourOf = row => `#0000${(row + 1).toString(16).padStart(2, '0')}`.toUpperCase();
const theme = {
    name: 'classes', type: 'light', fg: '#000000', bg: '#FFFFFF',
    settings: classes.map(([scope], row) => ({scope, settings: {foreground: colourOf(row)}})),
};
const classOf = new Map(classes.map(([, name], row) => [colourOf(row), name]));

const highlighter = await createHighlighterCore({
    engine: createJavaScriptRegexEngine(), themes: [theme],
    langs: [{...grammar, name: 'பொழில்', aliases: []}, python, shell],
});
const languages = {பொழில்: 'பொழில்', python: 'python', sh: 'shellscript'};

export function escaped(text) {
    return text.replaceAll('&', '&amp;').replaceAll('<', '&lt;').replaceAll('>', '&gt;').replaceAll('"', '&quot;');
}

function span({content, color}) {
    const name = classOf.get(color?.toUpperCase());
    const blank = content.trim() === '';
    return name && !blank ? `<span class="${name}">${escaped(content)}</span>` : escaped(content);
}

/** `text` as HTML; without colours where the language is none of the three. */
export function highlighted(text, language) {
    const lang = languages[language];
    if (!lang) return escaped(text);
    const lines = highlighter.codeToTokensBase(text, {lang, theme: 'classes'});
    return lines.map(line => line.map(span).join('')).join('\n');
}
