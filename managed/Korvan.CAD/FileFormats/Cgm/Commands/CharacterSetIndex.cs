using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The set of the characters of texts, by its place in the list of sets.</summary>
public sealed class CharacterSetIndex : GenericIndexCommand
{
    /// <summary>Creates the element with its default.</summary>
    public CharacterSetIndex()
        : base(ClassCode.AttributeElement, (int)AttributeElement.CharacterSetIndex)
    {
    }

    internal override void Apply(CodingState state) => state.Current.CharacterSet = Index;
}
