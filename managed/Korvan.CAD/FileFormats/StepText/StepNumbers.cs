using System;
using System.Globalization;
using System.Text;

namespace Korvan.CAD.FileFormats.StepText;

/// <summary>Writes numbers and binary values in the syntax of ISO 10303-21.</summary>
internal static class StepNumbers
{
    /// <summary>Writes a real number: the shortest digits that round-trip, always with a decimal point.</summary>
    internal static void WriteReal(double value, StringBuilder target)
    {
        string digits = value.ToString("R", CultureInfo.InvariantCulture);
        int exponent = digits.IndexOf('E', StringComparison.Ordinal);
        string mantissa = exponent < 0 ? digits : digits[..exponent];
        target.Append(mantissa);
        if (!mantissa.Contains('.', StringComparison.Ordinal))
        {
            target.Append('.');
        }

        if (exponent >= 0)
        {
            target.Append('E').Append(digits[(exponent + 1)..].TrimStart('+'));
        }
    }

    /// <summary>Writes a binary value.</summary>
    internal static void WriteBinary(StepBinary value, StringBuilder target)
    {
        int digits = (value.BitCount + 3) / 4;
        string all = Convert.ToHexString(value.Bytes);
        target.Append('"').Append((char)('0' + (digits * 4) - value.BitCount));
        target.Append(all, all.Length - digits, digits).Append('"');
    }
}
