#pragma once

// The texts of the help windows, one line for each paragraph.
namespace cirrava {

inline constexpr char how_to_use_text[] =
    R"(Cirrava PAL generates colour palette files in the format that Cirrava requires for its Thermal, Sea Surface temperature and HVC enhancements. These files are called CLUT files (colour look-up tables). They are Cirrava's source of colours for temperatures when it generates a map. Without them, Cirrava uses its default colours.

1. The main screen shows three temperature scales, one for each enhancement: Thermal, Sea Surface and HVC. Click the button of the enhancement that you want to work on; it turns green. Ctrl+1, Ctrl+2 and Ctrl+3 do the same, and F1 shows this help.

2. The objective is to set the colours that you prefer for temperature intervals, and then to generate the bmp files for the three enhancements.

3. Procedure :

a. Set the temperature range on the scale:
Left click on the scale to set the start of the range, right click to set its end. Rest the pointer on the scale to read its temperatures. A range may be a single temperature, for example "0" degrees C: left click and right click the same place. A blue line under the scale shows what is marked. With the keyboard, go to the Start and End boxes: Up and Down (or Right and Left) go one step warmer or colder, Page Up and Page Down ten, Ctrl+Home and Ctrl+End to the ends of the scale.

b. Set the Color for selected range:
Choose a colour in the bottom part of the screen, with the easy color pick buttons or, for custom colours, with the yellow "Advanced Color Picker" button. Adjust it with the red, green and blue sliders, and see it in the sample area on the right. Then click the "Apply Color" button, or press Ctrl+Enter. Ctrl+Z takes a change back, Ctrl+Y brings it back.

c. Copy color from one area to another:
Double click on a scale to copy the colour of that place into the sample area. From there you can apply it to any range of any scale. The double click also sets the start of the range, so copy the colour first and mark the range then. In the Start and End boxes, Enter copies the colour.

d. Generate color lookup table for Cirrava from your color settings
Click the generate button beside each enhancement (it works once the enhancement is the one you are working on), or press Ctrl+S; choose a file name and confirm. Copy the bmp file produced into Cirrava's installation folder. It is best to keep Cirrava PAL in that folder and to run it there: the file dialog then opens there by itself.

e. Load an already generated CLUT and modify it
Click "Load From File", or press Ctrl+O, to read a bmp file made by Cirrava PAL (or an identical bmp) into its scale. The program identifies the enhancement by itself. The colours of an HVC file come back a little darker than they were saved.

f. Tell Cirrava to use your new CLUT file
Configure Cirrava's image and movie options to use the files that you generated.

g. The HVC palette can be previewed in two dimensions before you generate its file. Select a range of the HVC scale with left and right clicks and slide the brightness bar: towards "Darker" or "Lighter", the further the more. With no range selected (click "Reset" first) the change applies to the whole scale; a dotted line shows it. "Reset" is for the brightness only: to apply a colour to the whole scale, press Ctrl+Home in the Start box and Ctrl+End in the End box. The image is shown at once, and kept in the file ~~temphvc.bmp in the current folder; when that file cannot be written, start Cirrava PAL in a folder of your own. The yellow button beside the scale gives more information.

In Future versions
1. A small scale embedded in the final images.
2. Fewer mouse clicks to set colours.
3. Personal settings stored on exit.
4. A more advanced file dialog.
5. An advanced colour picker.
6. Palettes for other imaging programs.
7. Gradual colour transitions from one range to the next.
8. Weather maps like Cirrava's (just joking!).
9. Any other suggestions that you have.

In Version2
The HVC palette preview was added. The scale display character was removed.

Version 2.1
Several corrections. The buttons that select the current working scale were added.
)";

inline constexpr char hvc_text[] =
    R"(HVC Palette

The HVC palette is two-dimensional, whereas the others are one-dimensional.

Its horizontal columns stand for temperatures from -60 to +39 degrees C, in steps of 1 degree. Vertically it stands for the luminosity (brightness) of the visible-channel image that Cirrava generates.

Set the colours in the scale, and the preview follows. Once you are satisfied, generate the HVC palette file.

The sliding bar increases or decreases the intensity of colours. Mark a range on the HVC scale first, or click "Reset" for the whole scale.

The "How to Use" button gives more information.
)";

} // namespace cirrava
