// An application of so many widgets, texts, buttons and boxes in turn, in rows that fill a window of
// 1280 by 720. hand_drawn.cpp beside this file draws the same.
const widgetsInRow = 24;

const kinds = [
    'உரை("வணக்கம்", உரைபாணி(அளவு: 10))',
    'பொத்தான்("கூட்டு", அகலம்: 44, உயரம்: 14)',
    'பெட்டி(அகலம்: 44, உயரம்: 14, பெட்டி_பாணி(வளைவு: 3, பின்னணி: "#2E7D32"))',
];

function row(count) {
    const lines = Array.from({length: count}, (_, i) => `                ${kinds[i % kinds.length]}\n`);
    return `            கிடைவரிசை(இடைவெளி: 4)(\n${lines.join('')}            )\n`;
}

/** The source of an application with `count` widgets beside the rows that they stand in. */
export function application(count) {
    let rows = '';
    for (let left = count; left > 0; left -= widgetsInRow) rows += row(Math.min(left, widgetsInRow));
    return `வலைதளம் அளவை(
    தலைமை(
        பின்னணி: "#FFFFFF"
    )
    குமரி(
        நெடுவரிசை(இடைவெளி: 3)(
${rows}        )
    )
    வரையறை(
        எண்ணிக்கை = 0
    )
)
`;
}
