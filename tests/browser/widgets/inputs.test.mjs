// What is typed into: frames on the canvas, and over them the elements of the page.
import {mkdirSync, writeFileSync} from 'node:fs';
import {join} from 'node:path';
import {PNG} from 'pngjs';
import {standsAsMeasured, widgetScreen} from '../support/widget_screen.mjs';

const white = [255, 255, 255], red = [255, 0, 0], green = [46, 125, 50], pale = [232, 245, 233];
const warning = [244, 67, 54], grey = [240, 244, 250], blue = [227, 242, 253], night = [17, 34, 51];
const half = [241, 121, 126];  // red over blue, seen through by half

function redPicture(work) {
    const image = new PNG({width: 8, height: 8});
    for (let at = 0; at < image.data.length; at += 4) image.data.set([...red, 255], at);
    mkdirSync(join(work, 'assets'), {recursive: true});
    writeFileSync(join(work, 'assets/red.png'), PNG.sync.write(image));
}

const streetIn = width => Math.min(600, width - 40);

const clear = 'rgba(0, 0, 0, 0)', dark = 'rgb(51, 51, 51)';
const seenThrough = {
    tag: 'input', hint: '', height: 50, isShown: true, layer: '100', background: clear, colour: dark,
    border: '0px', radius: '0px', font: '"Noto Sans Tamil", Arial, sans-serif', size: '16px',
    padding: '1px 2px', boxes: 'content-box', resize: '', outline: 'none', moves: '',
};
const byItself = {
    ...seenThrough, layer: '2000', border: '2px', radius: '12px', font: '"Noto Sans Tamil", sans-serif', size: '17px',
    padding: '0px 15px', boxes: 'border-box', moves: 'opacity 0.2s, border-color 0.2s',
};

/** What lies over the frames: a frame's element begins 15 pixels inside it, a bar's 45. */
const overFrames = width => [
    {...seenThrough, id: 'ஊர்', hint: 'உங்கள் ஊர்', x: 15, y: 30, width: 290},
    {...seenThrough, id: 'தெரு', x: 15, y: 100, width: streetIn(width) - 30, height: 40, colour: 'rgb(27, 94, 32)'},
    {...seenThrough, id: 'text_#', x: 51, y: 150, width: 254},
    {...seenThrough, id: 'கதை', tag: 'textarea', x: 15, y: 220, width: 290, height: 70,
        padding: '10px 2px', resize: 'none'},
    {...seenThrough, id: 'தவறு', x: 15, y: 320, width: 290},
    {...seenThrough, id: 'search_#', hint: 'Search...', x: 45, y: 390, width: 270},
    {...seenThrough, id: 'search_#', hint: 'ஊரைத் தேடு', x: 45, y: 450, width: width / 2 - 80, height: 40, size: '20px'},
    {...byItself, id: 'input_#', hint: 'சொல்', x: 0, y: 500, width: 200, height: 45,
        background: 'rgb(17, 34, 51)', colour: 'rgb(255, 255, 255)'},
    // Its lower edge lies below the window: the plate is seen, the element isn't.
    {...byItself, id: 'input_#', x: 0, y: 545, width: 320, height: 60, isShown: false,
        background: 'rgb(255, 255, 255)', colour: 'rgb(0, 0, 0)'},
];

standsAsMeasured(widgetScreen('inputs', redPicture), ({width}) => {
    const street = streetIn(width), bar = width / 2;
    return {
        texts: [{text: 'இது தேவை', x: 0, y: 374, size: 12, colour: warning}],
        colours: [
            [300, 32, white],
            [3, 101, green], [1, 120, green], [street - 10, 120, pale],
            [14, 166, red], [34, 183, red], [38, 175, white], [14, 188, white],
            [100, 320, warning], [100, 369, warning],
            [300, 430, grey], [18, 413, grey],
            [12, 462, half], [bar - 10, 470, blue], [bar + 5, 470, white],
            [100, 503, night], [190, 540, night], [210, 530, white],
        ],
        elements: overFrames(width),
    };
});
