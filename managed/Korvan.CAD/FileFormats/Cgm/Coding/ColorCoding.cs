using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Coding;

/// <summary>
/// Converts the components of direct colours to sRGB and back. Components of RGB and CMYK range from the minimum to the
/// maximum of the colour value extent; those of the other models are scaled and offset (ISO/IEC 8632-1, colour value
/// extent). CIE colours are relative to the white point D65.
/// </summary>
internal sealed class ColorCoding
{
    private const int MaxComponents = 4;

    private readonly ColourModel.Model _model;
    private readonly double[] _factors = new double[MaxComponents];
    private readonly double[] _offsets = new double[MaxComponents];

    internal ColorCoding(CodingState state)
    {
        _model = state.ColorModel;
        if (HasExtent)
        {
            UseExtent(state.ColorLow, state.ColorHigh);
        }
        else
        {
            state.ColorScale.AsSpan().CopyTo(_factors);
            state.ColorOffset.AsSpan().CopyTo(_offsets);
        }
    }

    /// <summary>Creates the coding of cells: a local precision is used in its full range.</summary>
    internal ColorCoding(CodingState state, CellFormat format)
        : this(state)
    {
        if (format.IsLocal && HasExtent)
        {
            double[] highest = new double[MaxComponents];
            Array.Fill(highest, Math.Pow(2, format.Bits) - 1);
            UseExtent(new double[MaxComponents], highest);
        }
    }

    private bool HasExtent => _model is ColourModel.Model.Rgb or ColourModel.Model.Cmyk;

    /// <summary>Returns an opaque colour, 0xFFRRGGBB.</summary>
    internal int ToArgb(ReadOnlySpan<long> components)
    {
        Span<double> parts = stackalloc double[MaxComponents];
        for (int i = 0; i < components.Length; i++)
        {
            parts[i] = (components[i] * _factors[i]) + _offsets[i];
        }

        return _model switch
        {
            ColourModel.Model.Cmyk => FromCmyk(parts[0], parts[1], parts[2], parts[3]),
            ColourModel.Model.CieLab => CieColor.FromLab(parts[0], parts[1], parts[2]),
            ColourModel.Model.CieLuv => CieColor.FromLuv(parts[0], parts[1], parts[2]),
            _ => Pack(parts[0], parts[1], parts[2]),
        };
    }

    /// <summary>Computes the components of a colour, as many as the model has.</summary>
    internal void FromArgb(int argb, Span<long> components)
    {
        Span<double> parts = stackalloc double[MaxComponents];
        (double red, double green, double blue) = (Part(argb >> 16), Part(argb >> 8), Part(argb));
        (parts[0], parts[1], parts[2], parts[3]) = _model switch
        {
            ColourModel.Model.Cmyk => ToCmyk(red, green, blue),
            ColourModel.Model.CieLab => CieColor.ToLab(red, green, blue),
            ColourModel.Model.CieLuv => CieColor.ToLuv(red, green, blue),
            _ => (red, green, blue, 0),
        };
        for (int i = 0; i < components.Length; i++)
        {
            components[i] = _factors[i] == 0 ? 0 : (long)Math.Round((parts[i] - _offsets[i]) / _factors[i]);
        }
    }

    /// <summary>Computes the components of a colour of a command.</summary>
    /// <exception cref="CgmDataException">It is indexed or translucent.</exception>
    internal void FromColor(CgmColor color, Span<long> components)
    {
        Verify.NotNull(color);
        if (color.IsIndexed)
        {
            throw new CgmDataException($"{color} is indexed, but the colour selection mode (COLRMODE) is direct");
        }

        if (color.Color.A != byte.MaxValue)
        {
            throw new CgmDataException(
                $"the colour {color.Color.Name} is translucent, but metafiles have opaque colours only");
        }

        FromArgb(color.Color.ToArgb(), components);
    }

    internal static int Pack(double red, double green, double blue) =>
        (0xFF << 24) | (Byte(red) << 16) | (Byte(green) << 8) | Byte(blue);

    private static int FromCmyk(double cyan, double magenta, double yellow, double black) =>
        Pack((1 - cyan) * (1 - black), (1 - magenta) * (1 - black), (1 - yellow) * (1 - black));

    private static double Part(int value) => (value & 0xFF) / 255.0;

    private static int Byte(double part) => (int)Math.Round(255 * Math.Clamp(double.IsNaN(part) ? 0 : part, 0, 1));

    private static (double C, double M, double Y, double K) ToCmyk(double red, double green, double blue)
    {
        double light = Math.Max(red, Math.Max(green, blue));
        return light == 0 ? (0, 0, 0, 1) : (1 - (red / light), 1 - (green / light), 1 - (blue / light), 1 - light);
    }

    private void UseExtent(double[] low, double[] high)
    {
        for (int i = 0; i < MaxComponents; i++)
        {
            (double first, double last) = (i < low.Length ? low[i] : 0, i < high.Length ? high[i] : 255);
            _factors[i] = first == last ? 0 : 1 / (last - first);
            _offsets[i] = -first * _factors[i];
        }
    }
}
