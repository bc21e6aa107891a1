using System.Collections.Generic;
using System.Linq;
using Microsoft.CodeAnalysis;

namespace Korvan.CAD.CodecGen;

/// <summary>A fixed string that files have at a place: its group code and its text.</summary>
internal sealed class CadLabel
{
    private CadLabel(AttributeData attribute)
    {
        Code = (int)attribute.ConstructorArguments[0].Value!;
        Text = (string)attribute.ConstructorArguments[1].Value!;
    }

    public int Code { get; }

    public string Text { get; }

    /// <summary>The labels that attributes of a type or a property declare, in their order.</summary>
    public static IEnumerable<CadLabel> On(ISymbol symbol, string attribute)
    {
        return symbol.GetAttributes().Where(candidate => candidate.AttributeClass?.Name == attribute)
            .Select(candidate => new CadLabel(candidate));
    }
}
