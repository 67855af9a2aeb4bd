// measure.mjs WHAT: prints a table for scripts/bench.sh and says whether the aims hold. `frames`: the
// time that scripts take for a frame, beside that of the same page drawn by hand. `growth`: the
// processor time of em++ for applications that grow.
import {build} from './build.mjs';
import {measureFrames} from './frames.mjs';

const frames = 300;  // of each page
const mostByHand = 2;     // times the frame by hand
const mostGrowth = 1.5;   // a widget among many, beside one among few

const ms = time => time.toFixed(3).padStart(9);
const verdict = (holds, aim) => console.log(`${holds ? '✔' : '✗'} ${aim}`);

async function withBuilt(counts, look) {
    const rows = [];
    for (const widgets of counts) {
        const built = await build(widgets);
        try {
            rows.push({widgets, ...await look(built)});
        } finally {
            built.remove();
        }
    }
    return rows;
}

async function tellOfFrames() {
    console.log('\nscript ms of a frame    ours   by hand    ratio   ours a widget   by hand a widget');
    let empty;
    // A page that doesn't start leaves gaps in its row, and the aims missed.
    const rows = await withBuilt([0, 10, 50, 200, 1000], built => measureFrames(built, frames).catch(error => {
        console.log(`  ${error.message}`);
        return {ours: NaN, byHand: NaN};
    }));
    for (const row of rows) {
        empty ??= row;
        const aWidget = side => row.widgets ? (row[side] - empty[side]) / row.widgets : NaN;
        row.aWidget = aWidget('ours');
        console.log(`${String(row.widgets).padStart(7)} widgets  ${ms(row.ours)} ${ms(row.byHand)} ` +
            `${(row.ours / row.byHand).toFixed(2).padStart(7)}x ${ms(row.aWidget)} ${ms(aWidget('byHand'))}`);
    }
    const [, , few, , many] = rows;
    verdict(rows.slice(1).every(({ours, byHand}) => ours <= mostByHand * byHand), 'at most twice the time by hand');
    verdict(many.aWidget <= mostGrowth * few.aWidget, 'the time of a widget is the same among 50 and among 1,000');
    console.log(`an empty page: ${empty.ours.toFixed(3)} ms, by hand ${empty.byHand.toFixed(3)} ms`);
}

async function tellOfGrowth() {
    console.log('\nem++, processor time    lines   seconds   ms a line behind the first application');
    const rows = await withBuilt([1, 10, 50, 200, 1000], async ({lines, seconds}) => ({lines, seconds}));
    for (const row of rows) {
        row.aLine = (row.seconds - rows[0].seconds) / (row.lines - rows[0].lines) * 1000;
        console.log(`${String(row.widgets).padStart(7)} widgets    ${String(row.lines).padStart(9)} ` +
            `${row.seconds.toFixed(2).padStart(9)} ${Number.isNaN(row.aLine) ? '' : ms(row.aLine)}`);
    }
    const [, , , some, many] = rows;
    verdict(many.aLine <= mostGrowth * some.aLine, 'a line among 1,000 widgets costs what it costs among 200');
}

await {frames: tellOfFrames, growth: tellOfGrowth}[process.argv[2]]();
