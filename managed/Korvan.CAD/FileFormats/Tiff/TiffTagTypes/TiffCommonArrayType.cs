using System;
using System.Globalization;
using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

/// <summary>A field whose values are numbers.</summary>
public abstract class TiffCommonArrayType : TiffDataType
{
    internal TiffCommonArrayType(int tagId)
        : base(tagId)
    {
    }

    /// <summary>Gives the values as floating point numbers, whatever their type.</summary>
    /// <returns>The values as floating point numbers, whatever their type.</returns>
    public abstract double[] ToDoubles();

    /// <inheritdoc/>
    public override string ToString()
    {
        string values = string.Join(' ', Array.ConvertAll(ToDoubles(), static v => v.ToString(CultureInfo.InvariantCulture)));
        return $"{TagId} ({TagType}): {values}";
    }

    private protected static void VerifyRange(int[] values, int low, int high)
    {
        foreach (int value in values)
        {
            Verify.InRange(value, low, high, nameof(values));
        }
    }

    private protected static void VerifyRange(long[] values, long low, long high)
    {
        foreach (long value in values)
        {
            Verify.InRange(value, low, high, nameof(values));
        }
    }
}
