// Words as the search compares them. A classic script for the pages, which the making of the index loads too.
// A Tamil word counts by how it sounds, so that long and short vowels, the letters that sound alike, and the
// many spellings in Latin letters all meet; the sounds' rows are those of the companion.
(() => {
    const tamil = /[\u0B80-\u0BFF]/;

    function split(text) {
        return text.replace(/[\u200B-\u200D\uFEFF]/g, '').match(/[\p{L}\p{M}\p{N}_]+/gu) ?? [];
    }

    /** From the rows of letters and sounds: {soundOf, keyOf}. */
    globalThis.pozhilWords = rows => {
        const [consonants, vowels, signs] = [rows.consonants, rows.vowels, rows.signs].map(row => new Map(row));

        function soundOfTamil(word) {
            let sound = '';
            let isOpen = false;
            for (const letter of word) {
                if (signs.has(letter)) {
                    sound += signs.get(letter);
                    isOpen = false;
                    continue;
                }
                if (isOpen) sound += 'a';
                isOpen = consonants.has(letter);
                sound += consonants.get(letter) ?? vowels.get(letter) ?? (letter < '\x80' ? letter : '');
            }
            return isOpen ? `${sound}a` : sound;
        }

        function soundOf(word) {
            let sound = soundOfTamil(word);
            for (const [from, to] of rows.latin) sound = sound.replaceAll(from, to);
            return sound.replace(/(.)\1+/g, '$1');
        }

        /** Behind a mark stands a sound; Latin words of the documents stay as they are. */
        function keyOf(word) {
            const small = word.toLowerCase();
            return tamil.test(small) ? `~${soundOf(small)}` : small;
        }

        return {soundOf, keyOf};
    };
    globalThis.pozhilWords.split = split;
    globalThis.pozhilWords.isTamil = word => tamil.test(word);
})();
