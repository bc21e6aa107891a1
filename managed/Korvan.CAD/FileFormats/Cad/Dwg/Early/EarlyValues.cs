using System;
using System.Collections.Generic;
using System.Text;
using Korvan.CAD.Encodings;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Early;

/// <summary>Reads the values of fields.</summary>
/// <param name="release">The release of the file.</param>
/// <param name="names">The names that indexes refer to.</param>
/// <param name="options">The load options.</param>
internal sealed class EarlyValues(EarlyRelease release, EarlyNames names, LoadOptions options)
{
    private const double MillisecondsOfDay = 86_400_000;
    private const int TableLength = 10;
    private const int YStep = 10;
    private const int ZStep = 20;

    private readonly TextEscapes _escapes = new(options.SpecifiedMifEncoding, options.RecoverMalformedCifMif);
    private readonly List<int> _points = [];

    /// <summary>Gets the release of the file.</summary>
    internal EarlyRelease Release { get; } = release;

    /// <summary>Gets the names that indexes refer to.</summary>
    internal EarlyNames Names { get; } = names;

    /// <summary>Gets or sets the encoding of strings.</summary>
    internal Encoding Encoding { get; set; } = options.SpecifiedEncoding == CodePages.Default
        ? DwgCodePage.Get(DwgCodePage.DefaultName)
        : DwgCodePage.Get((int)options.SpecifiedEncoding);

    /// <summary>Gets or sets the Z of points that have none, of the record that is read.</summary>
    internal double Elevation { get; set; }

    /// <summary>Gets or sets whether the record states that its points have no Z.</summary>
    internal bool IsFlat { get; set; }

    /// <summary>Reads fields as long as the record lasts.</summary>
    /// <param name="fields">The fields.</param>
    /// <param name="recordOptions">The options of the record, which say what fields it has.</param>
    /// <param name="bytes">The record.</param>
    /// <param name="target">Gets the values.</param>
    /// <param name="mayEnd">Whether the record may end before any field.</param>
    internal void Read(
        EarlyField[] fields, int recordOptions, EarlyBytes bytes, EarlyFieldReader target, bool mayEnd = false)
    {
        _points.Clear();
        foreach (EarlyField field in fields)
        {
            if (mayEnd && bytes.Remaining < LengthOf(field))
            {
                return;
            }

            if (field.IsIn(Release, recordOptions))
            {
                Read(field, recordOptions, bytes, target);
            }
        }
    }

    /// <summary>Decodes a string.</summary>
    internal string Decode(ReadOnlySpan<byte> text) => _escapes.Decode(Encoding.GetString(text));

    /// <summary>Reads a string of fixed width, which ends with the first zero.</summary>
    internal string Fixed(EarlyBytes bytes, int width)
    {
        ReadOnlySpan<byte> text = bytes.Take(width);
        int end = text.IndexOf((byte)0);
        return Decode(end < 0 ? text : text[..end]);
    }

    /// <summary>Returns the length of a field; of fields whose length is in the file, the length of that.</summary>
    internal static int LengthOf(EarlyField field) => field.Coding switch
    {
        EarlyCoding.Byte or EarlyCoding.StyleByte => sizeof(byte),
        EarlyCoding.Offset => sizeof(uint),
        EarlyCoding.Real or EarlyCoding.Angle or EarlyCoding.Height or EarlyCoding.Date or EarlyCoding.Handle =>
            sizeof(double),
        EarlyCoding.Plane or EarlyCoding.Flat or EarlyCoding.Raised or EarlyCoding.Point => 2 * sizeof(double),
        EarlyCoding.Spatial => 3 * sizeof(double),
        EarlyCoding.Fixed or EarlyCoding.Unused => field.Width,
        EarlyCoding.LayerColors => field.Width * sizeof(short),
        EarlyCoding.Dashes => field.Width * sizeof(double),
        EarlyCoding.Table => TableLength,
        EarlyCoding.Elevation => 0,
        _ => sizeof(short),
    };

    private void Read(EarlyField field, int recordOptions, EarlyBytes bytes, EarlyFieldReader target)
    {
        switch (field.Coding)
        {
            case EarlyCoding.Byte:
                target.Add(field.Code, bytes.Byte());
                break;
            case EarlyCoding.Short:
                target.Add(field.Code, bytes.Int16());
                break;
            case EarlyCoding.Real:
                target.Add(field.Code, bytes.Double());
                break;
            case EarlyCoding.Angle:
                target.Add(field.Code, double.RadiansToDegrees(bytes.Double()));
                break;
            case EarlyCoding.Dashes:
                ReadDashes(field, bytes, target);
                break;
            case EarlyCoding.Height or EarlyCoding.Elevation:
                ReadHeight(field, bytes, target);
                break;
            case EarlyCoding.Plane or EarlyCoding.Flat or EarlyCoding.Raised or EarlyCoding.Spatial
                or EarlyCoding.Point:
                ReadPoint(field, recordOptions, bytes, target);
                break;
            case EarlyCoding.Date:
                target.Add(field.Code, bytes.UInt32() + (bytes.UInt32() / MillisecondsOfDay));
                break;
            case EarlyCoding.Offset:
                target.Add(field.Code, bytes.UInt32());
                break;
            case EarlyCoding.Unused or EarlyCoding.Table or EarlyCoding.LayerColors:
                bytes.Take(LengthOf(field));
                break;
            default:
                ReadText(field, bytes, target);
                break;
        }
    }

    private void ReadPoint(EarlyField field, int recordOptions, EarlyBytes bytes, EarlyFieldReader target)
    {
        target.Add(field.Code, bytes.Double());
        target.Add(field.Code + YStep, bytes.Double());
        if (field.Coding == EarlyCoding.Plane)
        {
            return;
        }

        bool hasZ = field.Coding switch
        {
            EarlyCoding.Spatial => true,
            EarlyCoding.Raised => (recordOptions & field.Option) != 0,
            EarlyCoding.Point => Release >= EarlyRelease.R10 && !IsFlat,
            _ => false,
        };
        target.Add(field.Code + ZStep, hasZ ? bytes.Double() : Elevation);
        _points.Add(field.Code);
    }

    private void ReadHeight(EarlyField field, EarlyBytes bytes, EarlyFieldReader target)
    {
        if (field.Coding == EarlyCoding.Elevation)
        {
            target.Add(field.Code + ZStep, Elevation);
            return;
        }

        double height = bytes.Double();
        foreach (int code in _points)
        {
            if (code < 100)
            {
                target.Add(code + ZStep, height);
            }
        }
    }

    private static void ReadDashes(EarlyField field, EarlyBytes bytes, EarlyFieldReader target)
    {
        int count = target.Peek(73);
        for (int i = 0; i < field.Width; i++)
        {
            double length = bytes.Double();
            if (i < count)
            {
                target.Add(field.Code, length);
            }
        }
    }

    private void ReadText(EarlyField field, EarlyBytes bytes, EarlyFieldReader target)
    {
        string? text = field.Coding switch
        {
            EarlyCoding.Fixed => Fixed(bytes, field.Width),
            EarlyCoding.Counted => Decode(bytes.Take(bytes.UInt16())),
            EarlyCoding.Layer => EarlyNames.Find(Names.Layers, bytes.Int16(), "layer", bytes),
            EarlyCoding.LineType => Names.LineType(bytes.Int16(), bytes),
            EarlyCoding.Style => EarlyNames.Find(Names.Styles, bytes.Int16(), "text style", bytes),
            EarlyCoding.StyleByte => EarlyNames.Find(Names.Styles, bytes.Byte(), "text style", bytes),
            EarlyCoding.Block => EarlyNames.Find(Names.Blocks, bytes.Int16(), "block", bytes),
            EarlyCoding.DimensionStyle => Names.DimensionStyle(bytes.Int16(), bytes),
            EarlyCoding.CoordinateSystem => bytes.Int16() is var index and >= 0
                ? EarlyNames.Find(Names.CoordinateSystems, index, "coordinate system", bytes) : "",
            EarlyCoding.CodePage => CodePageIndex.NameOf(bytes.Int16()),
            EarlyCoding.Handle => bytes.BigEndian(sizeof(ulong)).ToString("X"),
            _ => throw new ArgumentOutOfRangeException(nameof(field), field.Coding, "The coding has no text."),
        };
        if (text is not null)
        {
            target.Add(field.Code, text);
        }
    }
}
