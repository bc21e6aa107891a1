using System.Globalization;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Tiff;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

namespace Korvan.CAD.Exif;

/// <summary>Reads and writes the tags of one directory as numbers, fractions and strings.</summary>
public class TiffDataTypeController
{
    /// <summary>Creates a controller over an empty directory.</summary>
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

    /// <summary>Returns a tag, or <see langword="null"/> where the directory has none.</summary>
    /// <param name="property">The tag number.</param>
    /// <returns>The tag, or <see langword="null"/>.</returns>
    public TiffDataType? GetTag(ExifProperties property) => Directory.Get((int)property);

    /// <summary>Removes a tag.</summary>
    /// <param name="property">The tag number.</param>
    /// <returns>Whether it was there.</returns>
    public bool Remove(ExifProperties property) => Directory.Remove((int)property);

    /// <summary>Returns a string; empty where the tag is missing.</summary>
    /// <param name="property">The tag number.</param>
    /// <returns>The string.</returns>
    public string GetText(ExifProperties property) => (GetTag(property) as TiffASCIIType)?.Text ?? "";

    /// <summary>Sets a string; an empty one removes the tag.</summary>
    /// <param name="property">The tag number.</param>
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

    /// <summary>Returns the first number of a tag, whatever its type.</summary>
    /// <param name="property">The tag number.</param>
    /// <param name="defaultValue">The result where the tag is missing.</param>
    /// <returns>The number.</returns>
    public double GetNumber(ExifProperties property, double defaultValue)
    {
        double[] values = GetNumbers(property);
        return values.Length > 0 ? values[0] : defaultValue;
    }

    /// <summary>Returns the numbers of a tag, whatever their type; empty where the tag is missing or a
    /// string.</summary>
    /// <param name="property">The tag number.</param>
    /// <returns>The numbers.</returns>
    public double[] GetNumbers(ExifProperties property) => (GetTag(property) as TiffCommonArrayType)?.ToDoubles() ?? [];

    /// <summary>Sets a number, in the type that the tag has; a new tag, or a number too large for the type, takes 16
    /// bits.</summary>
    /// <param name="property">The tag number.</param>
    /// <param name="value">The number, 0 to 65535.</param>
    public void SetNumber(ExifProperties property, int value)
    {
        Directory.Set(GetTag(property)?.TagType switch
        {
            TiffDataTypes.Long => new TiffLongType((int)property, [value]),
            TiffDataTypes.Byte when value is >= 0 and <= 255 => new TiffByteType((int)property, [(byte)value]),
            TiffDataTypes.Undefined when value is >= 0 and <= 255 =>
                new TiffUndefinedType((int)property, [(byte)value]),
            _ => new TiffShortType((int)property, [value]),
        });
    }

    /// <summary>Returns the first fraction of a tag, or <see langword="null"/> where there is none.</summary>
    /// <param name="property">The tag number.</param>
    /// <returns>The fraction, or <see langword="null"/>.</returns>
    public TiffRational? GetRational(ExifProperties property) =>
        GetTag(property) is TiffRationalType { Count: > 0 } field ? field.Values[0] : null;

    /// <summary>Sets a fraction; <see langword="null"/> removes the tag.</summary>
    /// <param name="property">The tag number.</param>
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

    /// <summary>Returns the bytes of a tag; empty where it is missing or its values are no bytes.</summary>
    /// <param name="property">The tag number.</param>
    /// <returns>The bytes.</returns>
    public byte[] GetBytes(ExifProperties property) => GetTag(property) switch
    {
        TiffUndefinedType field => field.Values,
        TiffByteType field => field.Values,
        _ => [],
    };

    /// <summary>Sets bytes of type Undefined; an empty array removes the tag.</summary>
    /// <param name="property">The tag number.</param>
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
    public override string ToString() => string.Create(CultureInfo.InvariantCulture, $"{Directory.Count} tags");
}
