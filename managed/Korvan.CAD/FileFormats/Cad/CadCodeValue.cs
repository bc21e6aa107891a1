using System;
using System.Globalization;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>A tag of a drawing file: a group code and the text of its value.</summary>
public class CadCodeValue
{
    /// <summary>Creates a tag.</summary>
    /// <param name="attribute">The group code.</param>
    /// <param name="value">The text of the value.</param>
    public CadCodeValue(int attribute, string value)
    {
        Verify.NotNull(value);
        Attribute = attribute;
        Value = value;
    }

    /// <summary>Gets or sets the group code.</summary>
    public int Attribute { get; set; }

    /// <summary>Gets or sets the text of the value.</summary>
    public string Value { get; set; }

    /// <summary>Gets the type of the value, which the group code states.</summary>
    public CadGroupCodeTypes CodeType => GroupCodes.TypeOf(Attribute);

    /// <summary>Returns the value as a number.</summary>
    /// <returns>The value as a number.</returns>
    /// <exception cref="FormatException">The text is not a number.</exception>
    public double GetDoubleValue() => double.Parse(Value, NumberStyles.Float, CultureInfo.InvariantCulture);

    /// <summary>Returns the value as an integer.</summary>
    /// <returns>The value as an integer.</returns>
    /// <exception cref="FormatException">The text is not an integer.</exception>
    public int GetIntValue() => int.Parse(Value, NumberStyles.Integer, CultureInfo.InvariantCulture);

    /// <inheritdoc/>
    public override string ToString() => $"{Attribute}: {Value}";
}
