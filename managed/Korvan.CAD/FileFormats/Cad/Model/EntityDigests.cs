using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Finds entities that are alike without a comparison of each with each.</summary>
internal static class EntityDigests
{
    /// <summary>Returns two numbers for each entity, which are those of another one that is alike, but for handles and
    /// extended data. What no class interprets counts as it is stored.</summary>
    /// <param name="entities">The entities.</param>
    /// <param name="digits">The decimals that numbers are compared by.</param>
    internal static List<ulong> Of(IEnumerable<CadEntityBase> entities, int digits)
    {
        List<ulong> found = [];
        DigestExchange digest = new(digits);
        foreach (CadEntityBase entity in entities)
        {
            digest.Restart();
            AddTree(digest, entity);
            (ulong low, ulong high) = digest.Value;
            found.Add(low);
            found.Add(high);
        }

        return found;
    }

    /// <summary>Returns a number for the fields of an entity, without its handle and what no class interprets.
    /// </summary>
    internal static ulong OfFields(CadEntityBase entity)
    {
        const int exact = 15;
        DigestExchange digest = new(exact);
        digest.Restart();
        entity.Exchange(digest);
        return digest.Value.Low;
    }

    private static void AddTree(DigestExchange digest, CadEntityBase entity)
    {
        Add(digest, entity);
        switch (entity)
        {
            case CadPolylineBase polyline:
                polyline.Vertices.ForEach(vertex => Add(digest, vertex));
                break;
            case CadInsertObject insert:
                insert.Attributes.ForEach(attribute => Add(digest, attribute));
                break;
        }
    }

    private static void Add(DigestExchange digest, CadEntityBase entity)
    {
        digest.Add(0, entity.DxfName);
        entity.Exchange(digest);
        if (entity is CadObjectWithAcisData { DataRecord: { } record } solid)
        {
            digest.Add(0, record.Data);
            digest.Add(0, solid.UntrimmedData);
        }

        switch (entity.Kept)
        {
            case KeptTags tags:
                digest.Tags(tags.Values);
                digest.Tags(tags.Embedded ?? []);
                break;
            case KeptBits bits:
                digest.Add(0, bits.Record);
                break;
        }
    }
}
