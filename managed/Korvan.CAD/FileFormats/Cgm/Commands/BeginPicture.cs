using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Begins a picture and its description; all settings return to the defaults.</summary>
public sealed class BeginPicture : Command
{
    /// <summary>Begins a picture without name.</summary>
    public BeginPicture()
        : base(ClassCode.DelimiterElement, (int)DelimiterElement.BeginPicture)
    {
    }

    /// <summary>Creates the element with its parameters.</summary>
    /// <param name="identifier">The name of the picture.</param>
    public BeginPicture(string identifier)
        : this()
    {
        Verify.NotNull(identifier);
        Identifier = identifier;
    }

    /// <summary>Gets or sets the name of the picture.</summary>
    public string Identifier { get; set; } = "";

    /// <inheritdoc/>
    public override string ToString() => $"{Keyword} '{Identifier}'";

    internal override void Exchange(ParameterExchange x) => Identifier = x.String(Identifier);

    internal override void Apply(CodingState state) => state.BeginPicture();
}
