using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The names of the libraries of symbols, which are counted from 1.</summary>
public sealed class SymbolLibraryList : Command
{
    /// <summary>Creates an empty list.</summary>
    public SymbolLibraryList()
        : base(ClassCode.MetaFileDescriptorElement, (int)MetaFileDescriptorElement.SymbolLibraryList)
    {
    }

    /// <summary>Gets or sets the names.</summary>
    public List<string> Libraries { get; set; } = [];

    internal override void Exchange(ParameterExchange x) =>
        Libraries = x.Rest(Libraries, static (y, text) => y.String(text));
}
