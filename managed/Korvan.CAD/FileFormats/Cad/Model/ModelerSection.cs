using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>
/// The section with the binary data of solids in drawings of release 2013 and later (DXF reference, "ACDSDATA"): a record
/// has the handle of its entity in group code 320 and chunks of bytes in group code 310.
/// </summary>
internal static class ModelerSection
{
    private const string SectionName = "ACDSDATA";
    private const int Handle = 320;
    private const int Chunk = 310;

    /// <summary>Gives entities the data that are theirs.</summary>
    internal static void Attach(CadDrawing drawing)
    {
        if (drawing.RawSections.Find(static section => section.Name == SectionName)?.Content is not KeptTags content)
        {
            return;
        }

        var entities = new Dictionary<string, IModelerData>(StringComparer.OrdinalIgnoreCase);
        foreach (CadEntityBase entity in DrawingWalk.Entities(drawing))
        {
            if (entity is IModelerData solid)
            {
                entities.TryAdd(entity.ObjectHandle, solid);
            }
        }

        IModelerData? owner = null;
        foreach (KeptTag tag in content.Tags)
        {
            switch (tag.Value.Attribute)
            {
                case 0:
                    owner = null;
                    break;
                case Handle:
                    entities.TryGetValue(tag.Value.Value.Trim().TrimStart('0'), out owner);
                    break;
                case Chunk when owner is not null:
                    (owner.ModelerChunks ??= []).Add(tag.Value.Value);
                    break;
            }
        }
    }
}
