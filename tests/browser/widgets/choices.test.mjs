// Check boxes: checked, unchecked, of their own colours and sizes, with labels beside them.
import {standsAsMeasured, widgetScreen} from '../support/widget_screen.mjs';

const blue = [33, 150, 243], green = [46, 125, 50], white = [255, 255, 255], red = [198, 40, 40];

standsAsMeasured(widgetScreen('choices'), ({scale}) => ({
    texts: [
        {text: 'வேண்டும்', x: 36, y: 36.5, size: 16 * scale},
        {text: 'வேண்டாம்', x: 36, y: 70.5, size: 16 * scale},
    ],
    colours: [
        [3, 42, blue], [3, 76, white], [8, 100, green], [58, 110, green], [62, 110, white],
        [12, 168, red], [12, 180, white],
    ],
}));
