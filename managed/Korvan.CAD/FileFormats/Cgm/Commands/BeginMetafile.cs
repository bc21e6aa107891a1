using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Begins the metafile.</summary>
public sealed class BeginMetafile : Command
{
    /// <summary>Begins a metafile without name.</summary>
    public BeginMetafile()
        : base(ClassCode.DelimiterElement, (int)DelimiterElement.BeginMetafile)
    {
    }

    /// <summary>Creates the element with its parameters.</summary>
    /// <param name="identifier">The name of the metafile.</param>
    public BeginMetafile(string identifier)
        : this()
    {
        Verify.NotNull(identifier);
        Identifier = identifier;
    }

    /// <summary>Gets or sets the name of the metafile.</summary>
    public string Identifier { get; set; } = "";

    /// <inheritdoc/>
    public override string ToString() => $"{Keyword} '{Identifier}'";

    internal override void Exchange(ParameterExchange x) => Identifier = x.String(Identifier);

    internal override void Apply(CodingState state) => state.BeginMetafile();
}
