using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.ImageOptions;

namespace Korvan.CAD.FileFormats.Tiff;

/// <summary>The valid combinations of compression and samples.</summary>
internal static class TiffPresets
{
    private static readonly int[] Rgb = [8, 8, 8];
    private static readonly int[] Rgba = [8, 8, 8, 8];
    private static readonly int[] Byte = [8];
    private static readonly int[] Bit = [1];

    internal static (TiffCompressions Compression, TiffPhotometrics Photometric, int[] Bits) Of(
        TiffExpectedFormat format)
    {
        return format switch
        {
            TiffExpectedFormat.TiffNoCompressionRgb => (TiffCompressions.None, TiffPhotometrics.Rgb, Rgb),
            TiffExpectedFormat.TiffNoCompressionRgba => (TiffCompressions.None, TiffPhotometrics.Rgb, Rgba),
            TiffExpectedFormat.TiffNoCompressionBw => (TiffCompressions.None, TiffPhotometrics.MinIsBlack, Bit),
            TiffExpectedFormat.TiffLzwRgba => (TiffCompressions.Lzw, TiffPhotometrics.Rgb, Rgba),
            TiffExpectedFormat.TiffLzwGray => (TiffCompressions.Lzw, TiffPhotometrics.MinIsBlack, Byte),
            TiffExpectedFormat.TiffLzwPalette => (TiffCompressions.Lzw, TiffPhotometrics.Palette, Byte),
            TiffExpectedFormat.TiffLzwBw => (TiffCompressions.Lzw, TiffPhotometrics.MinIsBlack, Bit),
            TiffExpectedFormat.TiffDeflateRgb => (TiffCompressions.AdobeDeflate, TiffPhotometrics.Rgb, Rgb),
            TiffExpectedFormat.TiffDeflateRgba => (TiffCompressions.AdobeDeflate, TiffPhotometrics.Rgb, Rgba),
            TiffExpectedFormat.TiffDeflateGray => (TiffCompressions.AdobeDeflate, TiffPhotometrics.MinIsBlack, Byte),
            TiffExpectedFormat.TiffDeflateBw => (TiffCompressions.AdobeDeflate, TiffPhotometrics.MinIsBlack, Bit),
            TiffExpectedFormat.TiffJpegRgb => (TiffCompressions.Jpeg, TiffPhotometrics.Rgb, Rgb),
            TiffExpectedFormat.TiffJpegGray => (TiffCompressions.Jpeg, TiffPhotometrics.MinIsBlack, Byte),
            TiffExpectedFormat.TiffPackBitsRgb => (TiffCompressions.PackBits, TiffPhotometrics.Rgb, Rgb),
            TiffExpectedFormat.TiffCcittRle => (TiffCompressions.CcittRle, TiffPhotometrics.MinIsWhite, Bit),
            TiffExpectedFormat.TiffCcittFax3 => (TiffCompressions.CcittFax3, TiffPhotometrics.MinIsWhite, Bit),
            TiffExpectedFormat.TiffCcittFax4 => (TiffCompressions.CcittFax4, TiffPhotometrics.MinIsWhite, Bit),
            _ => (TiffCompressions.Lzw, TiffPhotometrics.Rgb, Rgb),
        };
    }

    internal static TiffOptionsError Validate(TiffOptions options)
    {
        int[] bits = options.BitsPerSample;
        if (!Enum.IsDefined(options.Compression) || options.Compression == TiffCompressions.OldJpeg)
        {
            return TiffOptionsError.CompressionNotSupported;
        }

        bool gray = options.Photometric is TiffPhotometrics.MinIsBlack or TiffPhotometrics.MinIsWhite;
        if (!gray && options.Photometric is not
            (TiffPhotometrics.Rgb or TiffPhotometrics.Palette or TiffPhotometrics.Separated))
        {
            return TiffOptionsError.PhotometricNotSupported;
        }

        bool oneSample = gray || options.Photometric == TiffPhotometrics.Palette;
        if (bits.Length == 0 || Array.Exists(bits, size => oneSample ? size is not (1 or 4 or 8) : size != 8))
        {
            return TiffOptionsError.BitsPerSampleNotSupported;
        }

        bool matches = options.Photometric switch
        {
            TiffPhotometrics.Separated => bits.Length == 4,
            TiffPhotometrics.Rgb => bits.Length is 3 or 4,
            _ => bits.Length == 1,
        };
        if (!matches)
        {
            return TiffOptionsError.BitsPerSampleMismatch;
        }

        if (options.Palette is IColorPalette palette && options.Photometric == TiffPhotometrics.Palette
            && palette.EntriesCount > 1 << bits[0])
        {
            return TiffOptionsError.PaletteTooLarge;
        }

        return ValidateCompression(options.Compression, gray, bits, options.Photometric);
    }

    /// <summary>Options that are valid for some combinations only: whether each is set, whether it is valid, and the
    /// error otherwise.</summary>
    internal static IEnumerable<(string Name, bool IsSet, bool IsFollowed, string Advice)> Conditions(
        TiffOptions options)
    {
        bool numbers = options.Photometric == TiffPhotometrics.Palette || options.BitsPerPixel < 8;
        yield return (nameof(TiffOptions.Threshold), options.Threshold != TiffThresholds.NoDithering, numbers,
            "choose a palette or fewer than 8 bits, as other pixels keep their colours");
        yield return (nameof(TiffOptions.AlphaStorage), options.AlphaStorage != TiffAlphaStorage.Unassociated,
            options.Photometric == TiffPhotometrics.Rgb && options.SamplesPerPixel == 4,
            "choose red, green, blue and a fourth sample");
        yield return (
            nameof(TiffOptions.FillOrder), options.FillOrder != TiffFillOrders.Msb2Lsb, IsFax(options.Compression),
            "choose a facsimile code");
        yield return (
            nameof(TiffOptions.FaxT4Options), options.FaxT4Options != 0,
            options.Compression == TiffCompressions.CcittFax3,
            "choose CCITT_FAX3");
        yield return (nameof(TiffOptions.CompressedQuality), options.CompressedQuality != TiffOptions.DefaultQuality,
            options.Compression == TiffCompressions.Jpeg, "choose JPEG as compression");
    }

    internal static bool IsFax(TiffCompressions compression) =>
        compression is TiffCompressions.CcittRle or TiffCompressions.CcittFax3 or TiffCompressions.CcittFax4;

    private static TiffOptionsError ValidateCompression(
        TiffCompressions compression, bool gray, int[] bits, TiffPhotometrics photometric)
    {
        if (IsFax(compression) && !(gray && bits[0] == 1))
        {
            return TiffOptionsError.CompressionNeedsBilevel;
        }

        bool full = bits[0] == 8 && (gray || (photometric == TiffPhotometrics.Rgb && bits.Length == 3));
        return compression == TiffCompressions.Jpeg && !full
            ? TiffOptionsError.CompressionNeedsFullSamples
            : TiffOptionsError.NoError;
    }
}
