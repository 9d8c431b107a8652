#pragma once

#include "filters/Job.h"

/// What the filters do, each with its number. C is the channel's value at a pixel and p the level;
/// what is said of a channel holds for blue, green and red, each by itself. Quotients are cut to
/// whole numbers and results limited to 0..255 unless something else is said. "In place" means that
/// a pixel sees its left and upper neighbours already changed, since pixels are done row by row
/// from the top left; all others see the picture as it was. 3 x 3 filters leave the outermost ring
/// of pixels alone.
namespace quillbrand::mFilterG {

// Sums of a neighbourhood, in place; filters/RunningSums.cpp.

/// 1: ((p + 24) * C - 2 * the eight neighbours) / (p + 8). A larger level sharpens less.
/// Level: -1000000..1000000 without -8.
void Sharpen(Job& job);

/// 3: the mean of the eight neighbours, without the centre.
void SmoothByEight(Job& job);

/// 5: the mean of the pixel and its four direct neighbours.
void SmoothByFive(Job& job);

/// 6: ((p + 9) * C - the eight neighbours) / (p + 1): the Laplacian of the eight neighbours taken
/// away from the picture (A. Rosenfeld, A. C. Kak, Digital Picture Processing, 1976, on
/// sharpening). Level: -1000000..1000000 without -1.
void SharpenByLaplacian(Job& job);

// Weighted neighbourhoods; filters/Convolution.cpp. In 7 to 11 the level is a colour, 0x00BBGGRR,
// of which each channel is added to its own.

/// 7: 8 * C - the eight neighbours, plus the level's channel: a Laplacian.
void Contour(Job& job);

/// 8: the size of (C - lower right neighbour + the level's channel), for every pixel that has one:
/// the diagonal difference of L. G. Roberts (Machine Perception of Three-Dimensional Solids, 1963).
void ReliefToLowerRight(Job& job);

/// 10: the same with the subtraction turned round.
void ReliefToUpperLeft(Job& job);

/// 9: the left column less the right one, row by row, plus the level's channel: the operator of
/// J. M. S. Prewitt (Object Enhancement and Extraction, 1970).
void ReliefToRight(Job& job);

/// 11: its mirror image, the right column less the left one.
void ReliefToLeft(Job& job);

/// 13: (2 * upper left + upper + left - lower - right - 2 * lower right) / 2 + 50: the weights of
/// I. Sobel (R. O. Duda, P. E. Hart, Pattern Classification and Scene Analysis, 1973), turned to
/// the diagonal of 8 as in the compass masks of G. S. Robinson (CGIP 6, 1977).
void DiagonalRelief(Job& job);

/// 19: (10 * C - the eight neighbours) / 2: half the picture's eightfold Laplacian added to it, the
/// high-boost kernel (R. C. Gonzalez, R. E. Woods, Digital Image Processing). On the ring,
/// neighbours outside the picture count as its mean grey, as in 17.
void EdgesOverMean(Job& job);

// Brightness and colour of single pixels; filters/Brightness.cpp.

/// 2: 255 - C, the negative.
void Negate(Job& job);

/// 12: a third of blue + green + red for all three.
void Grey(Job& job);

/// 14: C * (p + 100) / 100, rounded: linear scaling (W. K. Pratt, Digital Image Processing).
void Brighten(Job& job);

/// 16: levels 1 to 5 exchange the channels: red, green, blue take the old RBG, GRB, GBR, BRG, BGR,
/// which are the other orders of three letters as a dictionary has them. Other levels do nothing.
void SwapChannels(Job& job);

/// 17: (C - m) * (p + 100) / 100 + m, rounded, where m is the mean grey of the picture.
void Contrast(Job& job);

/// 28: (C - least) * 255 / (greatest - least), rounded, with the extremes of the channel over the
/// picture: the linear contrast stretch (Pratt, as above). Throws Fault where a channel has only
/// one value.
void StretchRange(Job& job);

/// 30: p / 100 * (C - grey) + C, rounded, where grey is that of 12: colours drawn away from grey
/// (P. Haeberli, D. Voorhies, Image Processing by Interpolation and Extrapolation, 1994).
void Saturate(Job& job);

/// 31: 255 * (C / 255) to the power of 1 / (p / 100), rounded: the power law of display gamma
/// (C. Poynton, Digital Video and HDTV, 2003). Level: from 1.
void Gamma(Job& job);

// Black and white of single pixels; filters/Threshold.cpp.

/// 18: white where any channel reaches that of the level, a colour, else black: thresholds by
/// channel (Pratt, as above).
void ThresholdColours(Job& job);

/// 20: white where grey / 16 + 1, grey as in 12, is greater than its place in a 4 by 4 matrix whose
/// corner lies at the top left: ordered dither (B. E. Bayer, IEEE ICC, 1973).
void DitherOrdered(Job& job);

/// 32: white where all three channels are greater than the level, else black. Tells no percent
/// while it works.
void Mask(Job& job);

// Error diffusion; filters/ErrorDiffusion.cpp. A channel greater than the level becomes 255, else
// 0; each share of the error, cut to a whole number, goes to a pixel ahead or below, which stays
// within 0..255. Rows run from left to right; shares beyond the picture are lost.

/// 21: shares 7 ahead; 3 5 1 below, over 16 (R. W. Floyd, L. Steinberg, An Adaptive Algorithm for
/// Spatial Greyscale, Proc. SID 17, 1976).
void DiffuseFloydSteinberg(Job& job);

/// 22: shares 8 4 ahead; 2 4 8 4 2 below, over 32 (D. Burkes, Presentation of the Burkes Error
/// Filter for Use in Preparing Continuous-Tone Images for Presentation on Bi-Level Devices, 1988).
void DiffuseBurkes(Job& job);

/// 23: shares 8 4 ahead; 2 4 8 4 2 below and 1 2 4 2 1 below that, over 42 (P. Stucki, MECCA,
/// IBM Research Report RZ1060, 1981).
void DiffuseStucki(Job& job);

// Windows of which one value wins.

/// 24: the mean of that one of the four 3 x 3 windows with the pixel in a corner that spreads
/// least about its mean; the first of equals (M. Kuwahara et al., Processing of RI-angiocardio-
/// graphic Images, 1976). Leaves a ring of two pixels alone. filters/Kuwahara.cpp.
void Kuwahara(Job& job);

/// 25 and 26: the greatest and the least of the nine values of the 3 x 3 window. filters/Rank.cpp.
void Dilate(Job& job);
void Erode(Job& job);

/// 27: the least of the nine, which is what flat erosion of a grey picture is (Y. Nakagawa,
/// A. Rosenfeld, A Note on the Use of Local Min and Max Operations in Digital Picture Processing,
/// IEEE SMC-8, 1978): 26 with another start of its search, and so the same result.
void LeastOfNine(Job& job);

// Chance; filters/Chance.cpp. Numbers are drawn pixel by pixel, row by row.

/// 4: each pixel takes the colours of one up to about p / 2 away, in place: two numbers a pixel,
/// for x and for y. A way that leads out of the picture is not gone in that direction.
void Diffuse(Job& job);

/// 29: adds a number of -p..p + 1 to each channel: a number for blue, green and red.
void AddNoise(Job& job);

// Blocks; filters/Blocks.cpp.

/// 15: each block of p by p pixels takes the colours of its top left one: a picture sampled at
/// every p-th pixel and shown by nearest neighbours. Level: from 1.
void Mosaic(Job& job);

}  // namespace quillbrand::mFilterG
