// Widgets on top of each other, in grids whose columns become fewer in narrow windows, and in lines
// that wrap.
import {standsAsMeasured, widgetScreen} from '../support/widget_screen.mjs';

const ground = [207, 216, 220], red = [198, 40, 40], blue = [21, 101, 192], green = [46, 125, 50];
const yellow = [249, 168, 37], purple = [106, 27, 154], teal = [0, 131, 143], brown = [78, 52, 46];
const pink = [173, 20, 87], grey = [55, 71, 79], olive = [85, 139, 47], white = [255, 255, 255];

/** Places and colours of the grid's children and of the wrapped ones, by the window's width. */
const placed = {
    1280: {
        cells: [[0, 110], [110, 110], [220, 110], [330, 110], [0, 180]],
        wrapped: [[0, 250], [312, 250], [624, 250]],
        free: [[105, 130], [30, 160], [0, 175], [70, 200], [306, 260], [930, 260], [624, 295]],
    },
    700: {
        cells: [[0, 110], [220, 110], [0, 180], [220, 180], [0, 230]],
        wrapped: [[0, 250], [312, 250], [0, 312]],
        free: [[105, 130], [330, 130], [105, 200], [306, 260], [620, 260], [306, 320]],
    },
    400: {
        cells: [[0, 110], [0, 160], [0, 230]],
        wrapped: [[0, 250], [0, 302], [0, 364]],
        free: [[110, 120], [105, 200], [306, 260], [306, 310], [306, 380], [220, 130]],
        // What the wrapped lines leave of the last two.
        more: [[30, 295, teal], [30, 358, brown]],
    },
};

standsAsMeasured(widgetScreen('grids'), ({width, scale}) => {
    const {cells, wrapped, free, more = []} = placed[width];
    const inside = (places, colours) => places.map(([x, y], i) => [x + 5, y + 5, colours[i]]);
    return {
        texts: [{text: 'மேலே', x: (200 - 4 * 0.65 * 20) / 2 + 5, y: 47, size: 20 * scale}],
        colours: [
            [3, 3, ground], [197, 97, ground], [203, 50, white], [57, 50, ground], [63, 23, red], [137, 23, red],
            [137, 66, red], [133, 73, blue], [147, 87, blue], [153, 80, ground],
            ...inside(cells, [green, yellow, purple, teal, brown]),
            ...inside(wrapped, [pink, grey, olive]),
            ...free.map(([x, y]) => [x, y, white]), ...more,
        ],
    };
});
