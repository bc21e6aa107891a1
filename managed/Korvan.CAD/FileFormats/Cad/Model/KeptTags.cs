using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Tags of a text or binary interchange file that no class interprets.</summary>
internal sealed class KeptTags : KeptData
{
    /// <summary>Gets the tags, each with the subclass marker that it follows.</summary>
    internal List<KeptTag> Tags { get; private init; } = [];

    /// <summary>Gets or sets the embedded object: group code 101 and all tags after it up to extended data.</summary>
    internal List<CadCodeValue>? Embedded { get; set; }

    /// <summary>Gets the tags without their markers, in the order of the file.</summary>
    internal CadCodeValue[] Values => [.. Tags.ConvertAll(static tag => tag.Value)];

    internal override string FormatName => "DXF";

    /// <summary>Returns the tags of a subclass of an entity without a class, whose markers are among its
    /// tags.</summary>
    internal List<CadCodeValue> Of(string subclass)
    {
        const int marker = 100;
        List<CadCodeValue> found = [];
        string current = "";
        foreach (CadCodeValue tag in Values)
        {
            if (tag.Attribute == marker)
            {
                current = tag.Value.Trim();
            }
            else if (current == subclass)
            {
                found.Add(tag);
            }
        }

        return found;
    }

    internal override KeptData Copy() => new KeptTags
    {
        Tags = Tags.ConvertAll(static tag => new KeptTag(tag.Subclass, Clone(tag.Value))),
        Embedded = Embedded?.ConvertAll(Clone),
    };

    private static CadCodeValue Clone(CadCodeValue value) => new(value.Attribute, value.Value);
}
