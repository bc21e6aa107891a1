using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A text at a point.</summary>
public sealed class Text : TextCommand
{
    /// <summary>Creates an empty text at the origin.</summary>
    public Text()
        : base(ClassCode.GraphicalPrimitiveElement, (int)GraphicalPrimitiveElement.Text)
    {
    }

    /// <summary>Creates a text of one piece.</summary>
    /// <param name="position">The point that the text is aligned to.</param>
    /// <param name="content">The characters.</param>
    public Text(CgmPoint position, string content)
        : this()
    {
        Verify.NotNull(position);
        Verify.NotNull(content);
        Position = position;
        Content = content;
    }

    /// <summary>Gets or sets the point that the text is aligned to.</summary>
    public CgmPoint Position { get; set; } = new();

    /// <inheritdoc/>
    public override string ToString() => $"{Keyword} {Position} '{Content}'";

    internal override void Exchange(ParameterExchange x)
    {
        Position = x.Point(Position);
        base.Exchange(x);
    }
}
