using System.Collections.Generic;
using System.Collections.ObjectModel;
using Korvan.CAD.Binding;

namespace Korvan.CAD.Collections;

/// <summary>A list of the model that rejects <see langword="null"/>.</summary>
/// <param name="name">The name of the property with the list.</param>
internal class CheckedList<T>(string name) : Collection<T>(new List<T>())
    where T : class
{
    /// <summary>Gets the items for enumeration; only the list may change them.</summary>
    internal new List<T> Items => (List<T>)base.Items;

    /// <inheritdoc/>
    protected override void InsertItem(int index, T item)
    {
        Verify.NotNull(item, $"an item of {name}");
        base.InsertItem(index, item);
    }

    /// <inheritdoc/>
    protected override void SetItem(int index, T item)
    {
        Verify.NotNull(item, $"an item of {name}");
        base.SetItem(index, item);
    }
}
