// The search: loads its index when it is first asked for, and shows what it finds below its field.
(() => {
    const form = document.querySelector('.search');
    const field = form.querySelector('input');
    const list = form.querySelector('.results');
    const rootUrl = document.documentElement.dataset.root;
    const {split, isTamil} = globalThis.pozhilWords;
    const mostResults = 20;
    form.hidden = false;

    function loadScript(name) {
        return new Promise((resolve, reject) => {
            const script = document.createElement('script');
            script.src = `${rootUrl}assets/${name}`;
            script.onload = resolve;
            script.onerror = () => reject(new Error(name));
            document.head.append(script);
        });
    }

    let loading;
    function loadedSearch() {
        loading ??= Promise.all([loadScript('minisearch.js'), loadScript('search-index.js')]).then(makeSearch);
        return loading;
    }

    function makeSearch() {
        const {sounds, index} = globalThis.pozhilIndex;
        const words = globalThis.pozhilWords(sounds);
        const engine = MiniSearch.loadJSON(index, {
            fields: ['title', 'text', 'names', 'code'], storeFields: ['url', 'page', 'title', 'text', 'names'],
            tokenize: split, processTerm: words.keyOf,
        });
        const vocabulary = JSON.parse(index).index.map(([term]) => term);
        return {engine, words, vocabulary};
    }

    /** The keys that a typed word may stand for. While one types, a letter may still get its vowel. */
    function keysOf(word, words) {
        const key = words.keyOf(word);
        const others = isTamil(word) ? (/[க-ஹ]$/u.test(word) ? [key.slice(0, -1)] : []) : [`~${words.soundOf(key)}`];
        return [key, ...others].filter(each => each !== '~');
    }

    /** Words that hold `key` behind their beginning. */
    function holding(key, vocabulary) {
        const sought = key.replace('~', '');
        if (sought.length < 3) return [];
        const isSound = key.startsWith('~');
        return vocabulary.filter(term => term.startsWith('~') === isSound && term.indexOf(sought) > (isSound ? 1 : 0)).slice(0, 100);
    }

    const asTheyStand = {tokenize: text => [text], processTerm: term => term};
    const weights = {boost: {title: 4, names: 5, text: 1, code: 0.4}};

    function query(text, {words, vocabulary}, fuzzy) {
        return {
            combineWith: 'AND',
            queries: split(text).map(word => {
                const keys = keysOf(word, words);
                const middles = keys.flatMap(key => holding(key, vocabulary));
                return {
                    combineWith: 'OR',
                    queries: [
                        ...keys.map(key => ({queries: [key], ...asTheyStand, prefix: true, fuzzy})),
                        ...middles.map(key => ({queries: [key], ...asTheyStand, boostTerm: () => 0.3})),
                    ],
                };
            }),
        };
    }

    /** How much a section gains by what was typed as a whole: as its title, or as its word elsewhere. */
    function gainOf(typed, {words}) {
        const keys = split(typed).length === 1 ? keysOf(typed, words) : [];
        return (id, term, {title, names, text}) => {
            if (title === typed || keys.includes(words.keyOf(title))) return 6;
            if (names.split(/,\s*/).includes(typed.toLowerCase())) return 6;
            if (title.includes(typed)) return 3;
            return text.includes(typed) ? 1.5 : 1;
        };
    }

    function find(text, search) {
        const typed = text.trim();
        const options = {...weights, ...asTheyStand, boostDocument: gainOf(typed, search)};
        const found = search.engine.search(query(typed, search, false), options);
        return found.length > 0 ? found : search.engine.search(query(typed, search, 0.25), options);
    }

    /** The sentence of `text` that holds the first found word, and the words in it. */
    function sentenceOf({text, terms}, words) {
        const sought = new Set(terms);
        const sentences = (text.match(/(?:[^.!?…\n]|[.!?…](?!\s|$))+[.!?…]*/g) ?? []).map(sentence => sentence.trim());
        const holds = sentence => split(sentence).some(word => sought.has(words.keyOf(word)));
        return {sentence: sentences.find(holds) ?? sentences[0] ?? '', sought};
    }

    function shortened(sentence, at) {
        const most = 150;
        if (sentence.length <= most) return sentence;
        const from = at < most ? 0 : sentence.lastIndexOf(' ', at - most / 3) + 1;
        return `${from > 0 ? '… ' : ''}${sentence.slice(from, sentence.lastIndexOf(' ', from + most) + 1 || from + most)}…`;
    }

    function marked(sentence, sought, words) {
        const line = document.createElement('span');
        const pieces = sentence.split(/([\p{L}\p{M}\p{N}_]+)/u);
        const isSought = piece => /^[\p{L}\p{M}\p{N}_]/u.test(piece) && sought.has(words.keyOf(piece));
        const first = sentence.indexOf(pieces.find(isSought) ?? '');
        for (const piece of shortened(sentence, Math.max(first, 0)).split(/([\p{L}\p{M}\p{N}_]+)/u)) {
            if (!isSought(piece)) {
                line.append(piece);
                continue;
            }
            const mark = document.createElement('mark');
            mark.textContent = piece;
            line.append(mark);
        }
        return line;
    }

    function rowOf(result, {words}) {
        const link = document.createElement('a');
        link.href = rootUrl + result.url;
        const title = document.createElement('strong');
        title.textContent = result.title;
        link.append(title);
        if (result.page !== result.title) {
            const page = document.createElement('small');
            page.textContent = result.page;
            link.append(page);
        }
        const {sentence, sought} = sentenceOf(result, words);
        link.append(marked(sentence, sought, words));
        return link;
    }

    function say(text) {
        const line = document.createElement('p');
        line.textContent = text;
        list.replaceChildren(line);
        list.hidden = false;
    }

    async function show() {
        const text = field.value;
        if (split(text).length === 0) {
            list.hidden = true;
            return;
        }
        const search = await loadedSearch().catch(() => null);
        if (text !== field.value) return;  // more was typed meanwhile
        if (!search) return say('தேடலைத் தொடங்க முடியவில்லை.');
        const found = find(text, search);
        if (found.length === 0) return say(`'${text.trim()}' எங்கும் கிடைக்கவில்லை. வேறு சொல்லால் தேடிப் பார்.`);
        list.replaceChildren(...found.slice(0, mostResults).map(result => rowOf(result, search)));
        list.scrollTop = 0;
        list.hidden = false;
    }

    function step(by) {
        const links = [...list.querySelectorAll('a')];
        const at = links.indexOf(document.activeElement);
        const next = at + by;
        if (next < 0) field.focus();
        else links[Math.min(next, links.length - 1)]?.focus();
    }

    field.addEventListener('focus', () => { loadedSearch().catch(() => {}); });
    field.addEventListener('input', show);
    form.addEventListener('submit', event => {
        event.preventDefault();
        list.querySelector('a')?.click();
    });
    form.addEventListener('keydown', event => {
        if (event.key === 'ArrowDown' || event.key === 'ArrowUp') {
            event.preventDefault();
            step(event.key === 'ArrowDown' ? 1 : -1);
        } else if (event.key === 'Escape') {
            list.hidden = true;
            field.focus();
        }
    });
    list.addEventListener('click', event => {
        if (event.target.closest('a')) list.hidden = true;  // it may lead to a place of this very page
    });
    document.addEventListener('click', event => { if (!form.contains(event.target)) list.hidden = true; });
    document.addEventListener('keydown', event => {
        if (event.key !== '/' || /^(INPUT|TEXTAREA)$/.test(document.activeElement.tagName)) return;
        event.preventDefault();
        field.focus();
    });
})();
