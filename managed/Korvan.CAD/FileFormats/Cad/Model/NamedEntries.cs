using System;
using System.Collections;
using System.Linq;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Named objects as a dictionary whose keys are their names.</summary>
internal sealed class NamedEntries<T>(NamedObjects<T> items) : IDictionary
    where T : class, IKeyedObject
{
    public int Count => items.Count;

    public bool IsFixedSize => false;

    public bool IsReadOnly => false;

    public bool IsSynchronized => false;

    public object SyncRoot => this;

    public ICollection Keys => items.Items.ConvertAll(static item => item.Key);

    public ICollection Values => items.Items;

    public object? this[object key]
    {
        get => key is string name ? items.Find(name) : null;
        set => Set(key, value);
    }

    public void Add(object key, object? value)
    {
        if (Contains(key))
        {
            throw new DataMissmatchError($"There is an object called '{key}' already.");
        }

        Set(key, value);
    }

    public void Clear() => items.Clear();

    public bool Contains(object key) => items.Contains(key);

    public void CopyTo(Array array, int index) => items.CopyTo(array, index);

    public IDictionaryEnumerator GetEnumerator()
    {
        return ((IDictionary)items.Items.ToDictionary(static item => item.Key)).GetEnumerator();
    }

    public void Remove(object key)
    {
        if (this[key] is T item)
        {
            items.Remove(item);
        }
    }

    IEnumerator IEnumerable.GetEnumerator() => GetEnumerator();

    private void Set(object key, object? value)
    {
        if (value is IKeyedObject keyed && !string.Equals(keyed.Key, key as string, StringComparison.OrdinalIgnoreCase))
        {
            throw new DataMissmatchError(
                $"An object called '{keyed.Key}' cannot stand under the key '{key}'; rename it first.");
        }

        int index = this[key] is T old ? items.Items.IndexOf(old) : -1;
        if (index >= 0)
        {
            items[index] = value;
        }
        else
        {
            items.Add(value);
        }
    }
}
