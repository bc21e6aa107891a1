using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;

namespace Korvan.CAD.FileFormats.Cad.Dxf.Releases;

/// <summary>Replaces the entities that a release does not have.</summary>
internal static class EntityConversion
{
    private const int WithVisibility = 1994;

    internal static void Apply(CadDrawing drawing, PlainEntities plain, int release, List<string> changes)
    {
        foreach (CadBlockEntity block in drawing.BlockEntities)
        {
            if (release < WithVisibility)
            {
                RemoveWhere(block, static entity => entity.Visible != 0, changes);
            }

            Replace(block, plain, release, changes);
        }

        foreach (CadBlockEntity block in plain.Blocks)
        {
            drawing.BlockEntities.Add(block);
            if (release >= WithVisibility)
            {
                drawing.BlockRecords.Add(new CadBlockTableObject { Name = block.Name });
            }
        }
    }

    /// <summary>Removes entities, and lists them.</summary>
    internal static void RemoveWhere(CadBlockEntity block, Predicate<CadEntityBase> isRemoved, List<string> changes)
    {
        List<CadEntityBase> removed = block.Entities.FindAll(isRemoved);
        if (removed.Count == 0)
        {
            return;
        }

        removed.ForEach(entity => changes.Add(LeftOut(entity)));
        HashSet<CadEntityBase> gone = [.. removed];
        SetEntities(block, block.Entities.FindAll(entity => !gone.Contains(entity)));
    }

    private static void Replace(CadBlockEntity block, PlainEntities plain, int release, List<string> changes)
    {
        List<CadEntityBase> result = [];
        bool isChanged = false;
        foreach (CadEntityBase entity in block.Entities)
        {
            if (EntityReleases.Since(entity.DxfName) <= release)
            {
                result.Add(entity);
                continue;
            }

            isChanged = true;
            List<CadEntityBase> made = plain.Of(entity);
            TakeIdentity(entity, made);
            result.AddRange(made);
            changes.Add(made.Count == 0 ? LeftOut(entity) : $"{entity.DxfName}: written as {NamesOf(made)}");
        }

        if (isChanged)
        {
            SetEntities(block, result);
        }
    }

    private static string LeftOut(CadEntityBase entity) =>
        $"{entity.DxfName}{(entity.Visible != 0 ? " that is invisible" : "")}: left out";

    private static string NamesOf(List<CadEntityBase> made)
    {
        SortedSet<string> names = new(StringComparer.Ordinal);
        made.ForEach(entity => names.Add(entity.DxfName));
        return string.Join(", ", names);
    }

    // The first takes the place that others may refer to.
    private static void TakeIdentity(CadEntityBase entity, List<CadEntityBase> made)
    {
        made.ForEach(one => one.Owner = entity.Owner);
        if (made.Count == 0 || made[0] == entity)
        {
            return;
        }

        made[0].Handle = entity.Handle;
        foreach (CadXdata data in entity.XdataOrNull?.XdataEntities ?? [])
        {
            made[0].XdataContainer.XdataEntities.Add(data);
        }
    }

    private static void SetEntities(CadBlockEntity block, List<CadEntityBase> entities)
    {
        block.Entities.Clear();
        entities.ForEach(block.Entities.Add);
    }
}
