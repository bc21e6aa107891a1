using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.Annotations;

/// <summary>The annotations among the entities of model space: MTEXT and LEADER entities with extended data.</summary>
internal sealed class DrawingAnnotations(CadDrawing drawing) : IAnnotationService
{
    public int Count => GetAnnotations().Length;

    public AnnotationEntity[] GetAnnotations()
    {
        Dictionary<string, CadLeader> leaders = [];
        foreach (CadLeader leader in drawing.Entities.OfType<CadLeader>())
        {
            if (AnnotationXdata.Of(leader) is { } xdata)
            {
                leaders.TryAdd(xdata.Id, leader);
            }
        }

        List<AnnotationEntity> found = [];
        foreach (CadMText note in drawing.Entities.OfType<CadMText>())
        {
            if (AnnotationXdata.Of(note) is { } xdata)
            {
                found.Add(new AnnotationEntity(note, leaders.GetValueOrDefault(xdata.Id), xdata));
            }
        }

        return [.. found];
    }

    public AnnotationEntity[] GetAnnotationsOf(IAnnotateable target)
    {
        Verify.NotNull(target);
        return target.UniqueId.Length == 0
            ? []
            : [.. GetAnnotations().Where(one =>
                string.Equals(one.TargetId, target.UniqueId, StringComparison.OrdinalIgnoreCase))];
    }

    public void Add(AnnotationEntity annotation)
    {
        Verify.NotNull(annotation);
        if (AnnotationXdata.Of(annotation.Note) is not null)
        {
            throw new DataMissmatchError("The annotation already belongs to a drawing; build another one.");
        }

        annotation.Xdata.Put(annotation.Note);
        if (annotation.Leader is { } leader)
        {
            annotation.Xdata.Put(leader);
            drawing.Entities.Add(leader);
        }

        drawing.Entities.Add(annotation.Note);
    }

    public bool Remove(AnnotationEntity annotation)
    {
        Verify.NotNull(annotation);
        if (annotation.Leader is { } leader)
        {
            drawing.Entities.Remove(leader);
        }

        return drawing.Entities.Remove(annotation.Note);
    }

    public void Clear()
    {
        foreach (AnnotationEntity annotation in GetAnnotations())
        {
            Remove(annotation);
        }
    }
}
