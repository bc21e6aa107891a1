using System.Collections;
using System.Collections.Generic;
using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Ifc.Model;

/// <summary>A snapshot of the instances of a model; each is created on first access.</summary>
/// <param name="model">The model.</param>
/// <param name="records">The records; <see langword="null"/> for those from 0 on.</param>
/// <param name="count">The number of records.</param>
/// <param name="added">Instances that are not in the file.</param>
internal sealed class IfcEntityList(
    IfcModel model, int[]? records, int count, IReadOnlyList<IfcEntityBase> added) : IReadOnlyList<IIfcEntity>
{
    public int Count => count + added.Count;

    public IIfcEntity this[int index] =>
        (uint)index >= (uint)Count ? throw Verify.OutOfRange(nameof(index), index, $"The list has {Count} instances.")
        : index >= count ? added[index - count]
        : model.Instance(records is null ? index : records[index]);

    public IEnumerator<IIfcEntity> GetEnumerator()
    {
        for (int i = 0; i < Count; i++)
        {
            yield return this[i];
        }
    }

    IEnumerator IEnumerable.GetEnumerator() => GetEnumerator();
}
