using System;
using System.Globalization;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Tiff;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

namespace Korvan.CAD.Exif;

/// <summary>Reads and writes the fields of one directory by their meaning: numbers, fractions, texts.</summary>
public class TiffDataTypeController
{
    /// <summary>Creates a controller of an empty directory.</summary>
    public TiffDataTypeController()
        : this(new TiffExifIfd())
    {
    }

    /// <summary>Creates a controller.</summary>
    /// <param name="directory">The directory; it is changed in place.</param>
    public TiffDataTypeController(TiffExifIfd directory)
    {
        Verify.NotNull(directory);
        Directory = directory;
    }

    /// <summary>Gets the directory.</summary>
    public TiffExifIfd Directory { get; }

    /// <summary>Gives a field, or nothing.</summary>
    /// <param name="property">Its number.</param>
    /// <returns>A field, or nothing.</returns>
    public TiffDataType? GetTag(ExifProperties property) => Directory.Get((int)property);

    /// <summary>Takes a field out.</summary>
    /// <param name="property">Its number.</param>
    /// <returns>Whether it was there.</returns>
    public bool Remove(ExifProperties property) => Directory.Remove((int)property);

    /// <summary>Gives a text; empty where there is none.</summary>
    /// <param name="property">The number of the field.</param>
    /// <returns>A text.</returns>
    public string GetText(ExifProperties property) => (GetTag(property) as TiffASCIIType)?.Text ?? "";

    /// <summary>Sets a text; an empty one takes the field out.</summary>
    /// <param name="property">The number of the field.</param>
    /// <param name="value">The text.</param>
    public void SetText(ExifProperties property, string value)
    {
        Verify.NotNull(value);
        if (value.Length == 0)
        {
            Remove(property);
            return;
        }

        Directory.Set(new TiffASCIIType((int)property, value));
    }

    /// <summary>Gives the first number of a field, whatever its type.</summary>
    /// <param name="property">The number of the field.</param>
    /// <param name="defaultValue">What is given where there is none.</param>
    /// <returns>The first number of a field, whatever its type.</returns>
    public double GetNumber(ExifProperties property, double defaultValue)
    {
        double[] values = GetNumbers(property);
        return values.Length > 0 ? values[0] : defaultValue;
    }

    /// <summary>Gives the numbers of a field, whatever their type; none where the field is missing or a text.</summary>
    /// <param name="property">The number of the field.</param>
    /// <returns>The numbers of a field, whatever their type.</returns>
    public double[] GetNumbers(ExifProperties property) => (GetTag(property) as TiffCommonArrayType)?.ToDoubles() ?? [];

    /// <summary>Sets a number in the type that the field has, or 16 bits where it is new or too large for that.</summary>
    /// <param name="property">The number of the field.</param>
    /// <param name="value">The number, 0 to 65535.</param>
    public void SetNumber(ExifProperties property, int value)
    {
        Directory.Set(GetTag(property)?.TagType switch
        {
            TiffDataTypes.Long => new TiffLongType((int)property, [value]),
            TiffDataTypes.Byte when value is >= 0 and <= 255 => new TiffByteType((int)property, [(byte)value]),
            TiffDataTypes.Undefined when value is >= 0 and <= 255 => new TiffUndefinedType((int)property, [(byte)value]),
            _ => new TiffShortType((int)property, [value]),
        });
    }

    /// <summary>Gives the first fraction of a field, or nothing.</summary>
    /// <param name="property">The number of the field.</param>
    /// <returns>The first fraction of a field, or nothing.</returns>
    public TiffRational? GetRational(ExifProperties property) =>
        GetTag(property) is TiffRationalType { Count: > 0 } field ? field.Values[0] : null;

    /// <summary>Sets a fraction; nothing takes the field out.</summary>
    /// <param name="property">The number of the field.</param>
    /// <param name="value">The fraction.</param>
    public void SetRational(ExifProperties property, TiffRational? value)
    {
        if (value is null)
        {
            Remove(property);
            return;
        }

        Directory.Set(new TiffRationalType((int)property, [value]));
    }

    /// <summary>Gives the bytes of a field; none where it is missing or holds larger numbers.</summary>
    /// <param name="property">The number of the field.</param>
    /// <returns>The bytes of a field.</returns>
    public byte[] GetBytes(ExifProperties property) => GetTag(property) switch
    {
        TiffUndefinedType field => field.Values,
        TiffByteType field => field.Values,
        _ => [],
    };

    /// <summary>Sets bytes of no stated meaning; none take the field out.</summary>
    /// <param name="property">The number of the field.</param>
    /// <param name="value">The bytes.</param>
    public void SetBytes(ExifProperties property, byte[] value)
    {
        Verify.NotNull(value);
        if (value.Length == 0)
        {
            Remove(property);
            return;
        }

        Directory.Set(new TiffUndefinedType((int)property, value));
    }

    /// <inheritdoc/>
    public override string ToString() => string.Create(CultureInfo.InvariantCulture, $"{Directory.Count} fields");
}
