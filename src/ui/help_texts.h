#pragma once

// The texts of the help windows, one line for each paragraph.
namespace cirrava {

inline constexpr char how_to_use_text[] =
    R"(Cirrava PAL generates colour palette files in the format that Cirrava requires for its Thermal, Sea Surface temperature and HVC enhancements. These files are called CLUT files (colour look-up tables). They are Cirrava's source of colours for temperatures when it generates a map. Without them, Cirrava uses its default colours.

1. The main screen shows three temperature scales, one for each enhancement: Thermal, Sea Surface and HVC. Click the button of the enhancement that you want to work on; it turns green.

2. The objective is to set the colours that you prefer for temperature intervals, and then to generate the bmp files for the three enhancements.

3. Procedure :

a. Set the temperature range on the scale:
Left click on the scale to set the start of the range, right click to set its end. Rest the pointer on the scale to read its temperatures. A range may be a single temperature, for example "0" degrees C: left click and right click the same place. A blue line under the scale shows what is marked.

b. Set the Color for selected range:
Choose a colour in the bottom part of the screen, with the easy color pick buttons or, for custom colours, with the yellow "Advanced Color Picker" button. Adjust it with the red, green and blue sliders, whose tracks show what they would make of it, and see it in the sample area on the right. Then click the "Apply Color" button. A change can be undone, and redone.

c. Copy color from one area to another:
Double click on a scale to copy the colour of that place into the sample area. From there you can apply it to any range of any scale. The double click also sets the start of the range, so copy the colour first and mark the range then.

d. Generate color lookup table for Cirrava from your color settings
Click the generate button beside an enhancement, choose a file name and confirm. The button is enabled while you work on that enhancement. Copy the bmp file produced into Cirrava's installation folder. It is best to keep Cirrava PAL in that folder and to run it there: the file dialog then opens there by itself.

e. Load an already generated CLUT and modify it
Click "Load From File" to read a bmp file made by Cirrava PAL (or an identical bmp) into its scale. The program identifies the enhancement by itself. The colours of an HVC file come back a little darker than they were saved.

f. Tell Cirrava to use your new CLUT file
Configure Cirrava's image and movie options to use the files that you generated.

g. Preview the HVC palette and change its brightness
The HVC palette can be previewed in two dimensions before you generate its file. Select a range of the HVC scale with left and right clicks and slide the brightness bar: the further you slide it towards "Darker" or "Lighter", the more the colours change. With no range selected, after a click on "Reset", the change applies to the whole scale. A dotted line shows which cells change. "Reset" selects the whole scale for the brightness bar; to apply a colour to all of it, mark its first and its last cell. The image is shown at once. It is also kept in the file ~~temphvc.bmp in the folder from which Cirrava PAL was started, such as your home folder; when that file cannot be written, start Cirrava PAL in a folder of your own. The yellow button beside the scale gives more information.

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

Keys
F1: this help
F2, F3, F4: Thermal, Sea Surface, HVC
Ctrl+Enter: Apply Color
Ctrl+S: generate the palette of the scale that you work on
Ctrl+O: Load From File
Ctrl+Z: undo a change of colours
Ctrl+Y or Ctrl+Shift+Z: redo it

Keys in the Start and End boxes
Up, Down (or Right, Left): one step warmer or colder
Page Up, Page Down: ten steps warmer or colder
Ctrl+Home, Ctrl+End: to the ends of the scale
Enter: copy the colour of that place)";

inline constexpr char hvc_text[] =
    R"(HVC Palette

The HVC palette is two-dimensional, whereas the others are one-dimensional.

Its horizontal columns stand for temperatures from -60 to +39 degrees C, in steps of 1 degree. Vertically it stands for the luminosity (brightness) of the visible-channel image that Cirrava generates.

Set the colours in the scale, and the preview follows. Once you are satisfied, generate the HVC palette file.

The sliding bar increases or decreases the intensity of colours. Mark a range on the HVC scale first, or click "Reset" for the whole scale.

The "How to Use" button gives more information.)";

} // namespace cirrava
