using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>A tag of a drawing file with bytes, which text files have in hexadecimal.</summary>
public class CadBinaryCodeValue : CadCodeValue
{
    /// <summary>Creates a tag.</summary>
    /// <param name="attribute">The group code: 310 to 319 or 1004.</param>
    /// <param name="data">The bytes.</param>
    public CadBinaryCodeValue(int attribute, byte[] data)
        : base(attribute, ToText(data))
    {
    }

    internal CadBinaryCodeValue(int attribute, string text)
        : base(attribute, text)
    {
    }

    /// <summary>Gets or sets the bytes.</summary>
    /// <exception cref="FormatException">The text of the value is not hexadecimal.</exception>
    public byte[] Data
    {
        get => Convert.FromHexString(Value.Trim());
        set => Value = ToText(value);
    }

    private static string ToText(byte[] data)
    {
        Verify.NotNull(data);
        return Convert.ToHexString(data);
    }
}
