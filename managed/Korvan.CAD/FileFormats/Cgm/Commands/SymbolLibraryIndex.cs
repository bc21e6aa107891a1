using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The library of symbols, by its place in the list of libraries.</summary>
public sealed class SymbolLibraryIndex : GenericIndexCommand
{
    /// <summary>Creates the element with its default.</summary>
    public SymbolLibraryIndex()
        : base(ClassCode.AttributeElement, (int)AttributeElement.SymbolLibraryIndex)
    {
    }
}
