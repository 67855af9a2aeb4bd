// A document in its sections: for the list beside a page, and for the search.
import {wordsOf} from './markdown.mjs';

/** The line in which the reference tells what a word is called elsewhere. */
const otherNames = /^பிற மொழிகளில்:\s*/;

/** [{title, level, id, text, names, code}]; what stands before the first heading has the document's title. */
export function sectionsOf(md, document) {
    const sections = [{title: document.title, level: 1, id: '', text: [], names: [], code: []}];
    const tokens = md.parse(document.text, {document});
    tokens.forEach((token, at) => {
        if (token.type === 'fence') {
            sections.at(-1).code.push(token.content);
        } else if (token.type === 'inline' && tokens[at - 1].type === 'heading_open') {
            const {tag} = tokens[at - 1];
            sections.push({title: wordsOf(token), level: Number(tag[1]), id: tokens[at - 1].attrGet('id'), text: [], names: [], code: []});
        } else if (token.type === 'inline') {
            const words = wordsOf(token);
            if (otherNames.test(words)) sections.at(-1).names.push(words.replace(otherNames, ''));
            sections.at(-1).text.push(words);
        }
    });
    return sections.filter(({level, text, code, id}) => id || level > 1 || text.length + code.length > 0);
}
