// Columns and rows inside each other: alignment, gaps, shares of the space that is left.
import {standsAsMeasured, widgetScreen} from '../support/widget_screen.mjs';

const red = [198, 40, 40], blue = [21, 101, 192], green = [46, 125, 50], yellow = [249, 168, 37];
const purple = [106, 27, 154], teal = [0, 131, 143], brown = [78, 52, 46], pink = [173, 20, 87], grey = [55, 71, 79];
const white = [255, 255, 255];

standsAsMeasured(widgetScreen('columns'), ({width, height, scale}) => {
    const top = (height - (20 + 40 + 60 + 80 + 3 * 20)) / 2;
    const box = {x: (width - 120) / 2, y: top + 40};
    // The row is placed by what it measures, and draws as wide as it says.
    const shares = {x: (width - (40 + 10 + 10 + 40 + 3 * 10)) / 2, y: top + 100};
    const share = (360 - 100) / 3;
    const ofShares = (x, colour) => [shares.x + x, shares.y + 30, colour];
    // Gaps count after the last, too, so that the middle of the run is five pixels off.
    const bottom = {x: (width - 190) / 2 - 5, y: top + 180};
    const ofBottom = (x, y, colour) => [bottom.x + x, bottom.y + y, colour];
    return {
        texts: [{text: 'நடுவில்', middle: width / 2, y: top, size: 20 * scale}],
        colours: [
            [box.x + 3, box.y + 20, red], [box.x + 117, box.y + 20, red], [box.x - 3, box.y + 20, white],
            [box.x + 60, box.y - 4, white], [box.x + 60, box.y + 44, white],
            ofShares(3, blue), ofShares(37, blue), ofShares(45, white),
            ofShares(53, green), ofShares(50 + share - 3, green), ofShares(50 + share + 5, white),
            ofShares(60 + share + 3, yellow), ofShares(60 + 3 * share - 3, yellow),
            ofShares(70 + 3 * share + 3, purple), ofShares(70 + 3 * share + 37, purple),
            ofShares(70 + 3 * share + 43, white),
            ofBottom(30, 3, teal), ofBottom(30, 77, teal), ofBottom(73, 45, white), ofBottom(73, 53, brown),
            ofBottom(127, 77, brown), ofBottom(143, 33, white), ofBottom(143, 39, pink), ofBottom(173, 46, white),
            ofBottom(143, 58, white), ofBottom(187, 63, grey), ofBottom(193, 63, white),
        ].filter(([x]) => x >= 0 && x < width),
    };
});
