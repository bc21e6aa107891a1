using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>How exactly texts are placed.</summary>
public sealed class TextPrecision : Command
{
    internal static readonly string[] Words = ["STRING", "CHAR", "STROKE"];

    /// <summary>Creates the element with its default.</summary>
    public TextPrecision()
        : base(ClassCode.AttributeElement, (int)AttributeElement.TextPrecision)
    {
    }

    /// <summary>Gets or sets how exactly.</summary>
    public TextPrecisionType Value { get; set; }

    internal override void Exchange(ParameterExchange x) => Value = x.Enumeration(Value, Words);
}
