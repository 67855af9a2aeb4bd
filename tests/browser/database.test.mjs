// The realtime database: a program's four calls against a database that speaks the real protocol, by the
// very scripts that pages load. What the program does is pressed on its page, what it reads it prints.
import assert from 'node:assert/strict';
import {after, before, test} from 'node:test';
import {launch, openPage, until} from './support/browser.mjs';
import {databasePeer, serveDatabaseScripts} from './support/database_peer.mjs';
import {copyFonts} from './support/fonts.mjs';
import {nextFrames} from './support/frames.mjs';
import {noteTexts, pressText} from './support/widget_screen.mjs';
import {address, makeWorkplace, startCompiler, tidyUp} from './support/tool.mjs';

// What each button does.
const deeds = {
    'சேர்': `நிகழ்நேர.தரவுசேர்("பயனர்/1") {
                "பெயர்": "கண்ணன்", "முழு": 5, "தசமம்": 2.5, "ஆம்": மெய், "இல்லை": பொய்,
                "பட்டியல்": [1, [2, "மூன்று"]], நகரம்: ஊர்
            }`,
    'மாற்று': `நிகழ்நேர.தரவுமாற்று("பயனர்/1") {
                "பெயர்": "முருகன்", "முழு": 5, "கழித்தல்": கழித்தது, "தசமம்": 2.5,
                "பட்டியல்": [1, [2, 3]], "அகராதி": {"அ": 1, "ஆ": [2, {"இ": 3}]}
            }`,
    'உண்மை': 'நிகழ்நேர.தரவுமாற்று("பயனர்/1") { "ஆம்": மெய் }',
    'மாறி': 'நிகழ்நேர.தரவுமாற்று("பயனர்/1") { "நகரம்": ஊர் }',
    'அழி': 'நிகழ்நேர.தரவுஅழி("பயனர்/" இணை எண்ணிக்கை)',
    'படி': 'பெறு("பயனர்/1")',
    'நேர்': 'பெறு("நேர்")',
    'வகைகள்': `நிகழ்நேர.தரவுபடி("வகைகள்") {
                அச்சிடு(என்னவகை(தரவு["உ"]), " ", என்னவகை(தரவு["எ"]), " ", என்னவகை(தரவு["ஆ"]), " ", நீளம்(தரவு))
                அச்சிடு(தரவு["எ"] கூட்டு 1)
                அச்சிடு(தரவு["உ"])
                எனில் தரவு["ஆ"]:
                    அச்சிடு("ஆம் என்றது")
            }`,
    'இரண்டு': `பெறு("வகைகள்")
            பெறு("பயனர்/1")`,
    'தொடர்': `நிகழ்நேர.தரவுபடி("சுட்டி") {
                பெறு(தரவு["எங்கே"])
            }`,
    'ஒற்றை': 'நிகழ்நேர.தரவுசேர்("பயனர்/1") { "பெயர்": "மு\'கன்" }',
    'இரட்டை': 'நிகழ்நேர.தரவுசேர்("பயனர்/1") { "பெயர்": இரட்டைமேற்கோள் }',
    'வெற்று': 'நிகழ்நேர.தரவுசேர்("பயனர்/1") { }',
    'தவறு': 'பெறு("பயனர்\'1")',
};
const names = Object.keys(deeds);

const button = name => `பொத்தான்("${name}", அகலம்: 130, உயரம்: 36, அழுத்தினால்: வினை(): செய்${names.indexOf(name)}())`;
const column = some => `நெடுவரிசை(${some.map(name => `\n                ${button(name)}`).join('')}
            )`;

const source = url => `வலைதளம் சோதனை(
    தரவுத்தளமேலாண்மை(
        பயர்பேசு_அமைப்பு(
            api_key: "அ", database_url: "${url}", project_id: "peer"
        )
    )
    தலைமை(
        பின்னணி: "#FFFFFF"
    )
    குமரி(
        கிடைவரிசை(
            ${column(names.slice(0, 7))}
            ${column(names.slice(7))}
            உரை(கண்டது)
        )
    )
    வரையறை(
        ஊர் = "மதுரை"
        எண்ணிக்கை = 1
        கழித்தது = 0 கழி 3
        இரட்டைமேற்கோள் = "அ\\x22ஆ"
        கண்டது = "ஒன்றுமில்லை"

        செயல் பெறு(பாதைபெயர்):
            நிகழ்நேர.தரவுபடி(பாதைபெயர்) {
                அச்சிடு(பாதைபெயர், " ", நீளம்(தரவு), " ", தரவு)
                கண்டது = பாதைபெயர் இணை "/" இணை நீளம்(தரவு)
            }

${names.map((name, i) => `        செயல் செய்${i}():\n            ${deeds[name]}\n`).join('\n')}
        நிகழ்நேர.தரவுபடி("தொடக்கம்") {
            அச்சிடு("தொடக்கம் வந்தது")
        }
    )
)
`;

const screen = {viewport: {width: 560, height: 340}, screen: {width: 1920, height: 1080}};
const connected = '🔥 பொழில்: பயர்பேஸ் தரவுத்தளம் வெற்றிகரமாக இணைக்கப்பட்டது!';
const failure = '🔥 பொழில் இயக்கநேரப் பிழை (WASM):';
const refusal = '❌ ஃபயர்பேஸ் பிழை:';
const notThere = `${failure} Cannot read properties of undefined (reading 'ref')`;
const inserted = '✅ தரவு வெற்றிகரமாக சேமிக்கப்பட்டது!';
const updated = '✅ தரவு வெற்றிகரமாக மாற்றப்பட்டது!';
const removed = '✅ தரவு வெற்றிகரமாக அழிக்கப்பட்டது!';

let workplace, compiler, browser, peer, page;

before(async () => {
    peer = await databasePeer();
    workplace = makeWorkplace();
    copyFonts(workplace.work);
    workplace.write('நிரல்.பொழில்', source(peer.url));
    compiler = startCompiler(workplace, 'நிரல்.பொழில்');
    await until(() => /🌍 பிரவுசர்|404/.test(compiler.output) || compiler.ended, 'the build', 200);
    assert.ok(compiler.output.includes('வெற்றி!'), compiler.output);
    browser = await launch();
});
after(async () => {
    await tidyUp(browser, compiler, workplace);
    await peer?.stop();
});

/** A page of the program whose frames run. `net` is about the database's scripts. */
async function open(net = {}) {
    const page = await openPage(browser, screen, async page => {
        await page.addInitScript(noteTexts);
        await serveDatabaseScripts(page, net);
    });
    await page.goto(address);
    await until(() => page.evaluate(() => window.frames > 1), 'the first frames');
    return page;
}

/** The lines of one kind that haven't to do with addresses out of reach. */
const lines = (page, kind) => page[kind].filter(line => !/ERR_FAILED|WebSocket connection/.test(line));

/** Does the deed and answers what comes of it: as many lines of that kind, and none of the other. */
async function outcome(page, name, kind, count = 1) {
    page.printed = [];
    page.problems = [];
    await pressText(page, name);
    await until(() => lines(page, kind).length >= count, `what '${name}' says; ${page.printed}; ${page.problems}`);
    assert.deepEqual(lines(page, kind === 'printed' ? 'problems' : 'printed'), []);
    return lines(page, kind);
}
const printedBy = (page, name, count) => outcome(page, name, 'printed', count);
const problemsOf = (page, name, count) => outcome(page, name, 'problems', count);

test('calls before the scripts have come fail by themselves, and the program goes on', async () => {
    let openGate;
    page = await open({gate: new Promise(resolve => { openGate = resolve; })});
    assert.deepEqual(lines(page, 'problems'), [notThere], 'a read in the logic section');
    assert.deepEqual(await problemsOf(page, 'சேர்'), [`${failure} Firebase Database இணைக்கப்படவில்லை!`]);
    for (const name of ['மாற்று', 'அழி', 'படி']) assert.deepEqual(await problemsOf(page, name), [notThere], name);
    await nextFrames(page);
    page.printed = [];
    openGate();
    await until(() => page.printed.length > 0, 'the scripts');
    assert.deepEqual(page.printed, [connected]);
    assert.deepEqual(await printedBy(page, 'படி'), ['பயனர்/1 0 {}'], 'nothing was stored, and earlier calls stay lost');
});

test('an insert replaces what stands there, each value as a text', async () => {
    peer.put('பயனர்/1', {முன்பு: 'இருந்தது'});
    assert.deepEqual(await printedBy(page, 'சேர்'), [inserted]);
    assert.deepEqual(await peer.value('பயனர்/1'), {
        பெயர்: 'கண்ணன்', முழு: '5', தசமம்: '2.500000', ஆம்: 'மெய்', இல்லை: 'பொய்',
        பட்டியல்: '[1, [2, மூன்று]]', நகரம்: 'மதுரை',
    });
    assert.deepEqual(await printedBy(page, 'படி'), ['பயனர்/1 7 {"ஆம்": மெய், "இல்லை": பொய், "தசமம்": 2.500000, ' +
        '"நகரம்": மதுரை, "பட்டியல்": [1, [2, மூன்று]], "பெயர்": கண்ணன், "முழு": 5}']);
});

test('an update changes its keys alone, and keeps kinds', async () => {
    peer.put('பயனர்/1', {ஆம்: true, பெயர்: 'கண்ணன்', முழு: '5'});
    assert.deepEqual(await printedBy(page, 'மாற்று'), [updated]);
    assert.deepEqual(await peer.value('பயனர்/1'), {
        ஆம்: true, பெயர்: 'முருகன்', முழு: 5, கழித்தல்: -3, தசமம்: 2.5,
        பட்டியல்: [1, [2, 3]], அகராதி: {அ: 1, ஆ: [2, {இ: 3}]},
    });
    assert.deepEqual(await printedBy(page, 'படி'), ['பயனர்/1 5 {"ஆம்": மெய், "கழித்தல்": -3.000000, ' +
        '"தசமம்": 2.500000, "பெயர்": முருகன், "முழு": 5.000000}'], 'the first level alone comes back');
});

test('an update with a truth value or a text from a variable is no JSON', async () => {
    peer.put('பயனர்/1', {பெயர்: 'கண்ணன்'});
    for (const [name, json] of [['உண்மை', '{"ஆம்": மெய்}'], ['மாறி', '{"நகரம்": மதுரை}']]) {
        const [problem] = await problemsOf(page, name);
        assert.ok(problem.startsWith(failure) && problem.includes(json) && problem.includes('JSON'), problem);
    }
    assert.deepEqual(await peer.value('பயனர்/1'), {பெயர்: 'கண்ணன்'});
});

test('a read gives text, number and truth as such', async () => {
    peer.put('வகைகள்', {உ: 'சொல் "மேற்கோள்" \'ஒற்றை\'', எ: 4, ஆ: true, உள்ளே: {அ: 1}, வரிசை: [1]});
    assert.deepEqual(await printedBy(page, 'வகைகள்', 4),
        ['உரை தசம_எண் நிலை  3', '5.000000', 'சொல் "மேற்கோள்" \'ஒற்றை\'', 'ஆம் என்றது']);
    peer.put('வகைகள்', {உ: '', எ: 0, ஆ: false});
    assert.deepEqual(await printedBy(page, 'வகைகள்', 3), ['உரை தசம_எண் நிலை  3', '1.000000', '']);
});

test('a read of a bare value walks it', async () => {
    const read = {உரை: 'நேர் 3 {"0": ப, "1": ட, "2": ம}', எண்: 'நேர் 0 {}', பட்டியல்: 'நேர் 2 {"0": அ, "1": 2.000000}'};
    for (const [kind, value] of Object.entries({உரை: 'படம', எண்: 42, பட்டியல்: ['அ', 2]})) {
        peer.put('நேர்', value);
        assert.deepEqual(await printedBy(page, 'நேர்'), [read[kind]], kind);
    }
});

test('what is read shows on the page', async () => {
    peer.put('நேர்', null);
    await printedBy(page, 'நேர்');
    await until(() => page.evaluate(() => window.texts.some(({text}) => text === 'நேர்/0')), 'the text');
});

test('results of reads at the same time don\'t mix, and a result may ask for the next', async () => {
    peer.put('வகைகள்', {எ: 4});
    peer.put('பயனர்/1', {பெயர்: 'கண்ணன்'});
    assert.deepEqual((await printedBy(page, 'இரண்டு', 2)).sort(), ['பயனர்/1 1 {"பெயர்": கண்ணன்}', 'வகைகள் 1 {"எ": 4.000000}']);
    peer.put('சுட்டி', {எங்கே: 'பயனர்/1'});
    assert.deepEqual(await printedBy(page, 'தொடர்'), ['பயனர்/1 1 {"பெயர்": கண்ணன்}']);
});

test('a quote breaks the script, and the program goes on', async () => {
    peer.put('பயனர்/1', {பெயர்: 'கண்ணன்'});
    const [single] = await problemsOf(page, 'ஒற்றை');
    assert.match(single, /^🔥 பொழில் இயக்கநேரப் பிழை \(WASM\): (missing \)|Unexpected|Invalid)/);
    const [double] = await problemsOf(page, 'இரட்டை');
    assert.ok(double.startsWith(failure) && double.includes('JSON'), double);
    const [path] = await problemsOf(page, 'தவறு');
    assert.match(path, /^🔥 பொழில் இயக்கநேரப் பிழை \(WASM\): (missing \)|Unexpected|Invalid)/);
    assert.deepEqual(await peer.value('பயனர்/1'), {பெயர்: 'கண்ணன்'});
    assert.deepEqual(await printedBy(page, 'படி'), ['பயனர்/1 1 {"பெயர்": கண்ணன்}']);
});

test('a delete takes away its path alone, an insert of nothing likewise', async () => {
    peer.put('பயனர்', {1: {பெயர்: 'கண்ணன்'}, 12: {பெயர்: 'வேலன்'}});
    assert.deepEqual(await printedBy(page, 'அழி'), [removed]);
    assert.deepEqual(await peer.value('பயனர்'), {12: {பெயர்: 'வேலன்'}});
    peer.put('பயனர்/1', {பெயர்: 'கண்ணன்'});
    assert.deepEqual(await printedBy(page, 'வெற்று'), [inserted]);
    assert.deepEqual(await peer.value('பயனர்'), {12: {பெயர்: 'வேலன்'}});
});

test('what the database refuses is told of', async () => {
    peer.put('பயனர்/1', {பெயர்: 'கண்ணன்'});
    peer.permit({'.read': false, '.write': false});
    for (const name of ['சேர்', 'மாற்று', 'அழி']) {
        const [problem] = await problemsOf(page, name);
        assert.ok(problem.startsWith(refusal) && /permission/i.test(problem), problem);
    }
    const [problem] = await problemsOf(page, 'படி');
    assert.ok(problem.startsWith(failure) && /permission/i.test(problem), problem);
    peer.permit({'.read': true, '.write': true});
    assert.deepEqual(await printedBy(page, 'படி'), ['பயனர்/1 1 {"பெயர்": கண்ணன்}']);
});

test('what is asked while the database is gone is done when it is back', async () => {
    peer.put('பயனர்/1', null);
    peer.put('வகைகள்', {எ: 4});
    peer.goAway();
    page.printed = [];
    await pressText(page, 'சேர்');
    await pressText(page, 'இரண்டு');
    await nextFrames(page);
    peer.comeBack();
    await until(() => page.printed.includes(inserted), 'the insert');
    await until(() => page.printed.includes('வகைகள் 1 {"எ": 4.000000}'), 'the read');
    assert.equal((await peer.value('பயனர்/1')).பெயர், 'கண்ணன்');
    assert.deepEqual(lines(page, 'problems'), []);
});

test('one page reads what another has stored', async () => {
    peer.put('பயனர்/1', null);
    const other = await open();
    await until(() => other.printed.includes(connected), 'the scripts');
    await printedBy(page, 'மாற்று');
    assert.match((await printedBy(other, 'படி'))[0], /"பெயர்": முருகன்/);
    await printedBy(other, 'அழி');
    assert.deepEqual(await printedBy(page, 'படி'), ['பயனர்/1 0 {}']);
    await other.context().close();
});

test('a failure in what a read does shows its report', async () => {
    peer.put('சுட்டி', null);
    await pressText(page, 'தொடர்');
    const report = await page.waitForSelector('#notice.failed #report');
    assert.match(await report.textContent(), /பொழில்-312/);
    await page.context().close();
});

test('a page without a net is as whole as another', async () => {
    page = await open({isThere: false});
    await until(() => page.problems.filter(line => line.includes('ERR_FAILED')).length > 1, 'the missing script');
    assert.deepEqual(await problemsOf(page, 'சேர்'), [`${failure} Firebase Database இணைக்கப்படவில்லை!`]);
    for (let looks = 0; looks < 2; looks++) await page.waitForResponse(/version/);
    assert.ok(await page.isHidden('#notice'), await page.textContent('#notice'));
});
