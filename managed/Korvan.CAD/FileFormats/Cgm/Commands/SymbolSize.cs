using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The size of symbols.</summary>
public sealed class SymbolSize : Command
{
    private static readonly string[] Words = ["HEIGHT", "WIDTH", "BOTH"];

    /// <summary>Creates the element with its defaults.</summary>
    public SymbolSize()
        : base(ClassCode.AttributeElement, (int)AttributeElement.SymbolSize)
    {
    }

    /// <summary>Which sizes count.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum ScaleIndicator
    {
        /// <summary>The height; the shape is kept.</summary>
        Height = 0,

        /// <summary>The width; the shape is kept.</summary>
        Width = 1,

        /// <summary>Both.</summary>
        Both = 2,
    }

    /// <summary>Gets or sets which of both sizes count.</summary>
    public ScaleIndicator Scaling { get; set; }

    /// <summary>Gets or sets the height, in units of the coordinates.</summary>
    public double Height { get; set; } = 327;

    /// <summary>Gets or sets the width.</summary>
    public double Width { get; set; } = 327;

    internal override void Exchange(ParameterExchange x)
    {
        Scaling = x.Enumeration(Scaling, Words);
        Height = x.Vdc(Height);
        Width = x.Vdc(Width);
    }
}
