using System.Collections.Generic;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The layers of a drawing.</summary>
public class CadLayersList : NonGenericList
{
    private readonly NamedObjects<CadLayerTable> _items;

    internal CadLayersList()
        : this(new NamedObjects<CadLayerTable>("layer"))
    {
    }

    private CadLayersList(NamedObjects<CadLayerTable> items)
        : base(items)
    {
        _items = items;
    }

    /// <summary>Gets the names, in order.</summary>
    public string[] Names => [.. _items.Items.ConvertAll(static item => item.Key)];

    internal List<CadLayerTable> Items => _items.Items;

    /// <summary>Gets a layer by its place, from 0.</summary>
    /// <param name="index">The place.</param>
    public CadLayerTable this[int index] => _items.Items[index];

    /// <summary>Gets a layer by its name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <exception cref="CadException">There is none of this name.</exception>
    public CadLayerTable this[string name] => Get(name);

    /// <summary>Gives a layer by its name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>What has this name. <see cref="Find"/> gives nothing where there is none.</returns>
    /// <exception cref="CadException">There is none of this name.</exception>
    public CadLayerTable Get(string name) => Find(name)
        ?? throw new CadException($"The drawing has no layer called '{name}'.");

    /// <summary>Finds a layer; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>What was found, or nothing.</returns>
    public CadLayerTable? Find(string name) => _items.Find(name);

    /// <summary>Tells whether there is a layer of a name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>Whether there is a layer of a name.</returns>
    public bool Contains(string name) => _items.Find(name) is not null;

    /// <summary>Adds a layer.</summary>
    /// <param name="item">What is added.</param>
    public void Add(CadLayerTable item) => _items.Add(item);

    /// <summary>Removes a layer.</summary>
    /// <param name="item">What is removed.</param>
    /// <returns>Whether it was there.</returns>
    public bool Remove(CadLayerTable item) => _items.Remove(item);

    /// <summary>Gives all, in order.</summary>
    /// <returns>All, in order.</returns>
    public List<CadLayerTable>.Enumerator GetEnumerator() => _items.Items.GetEnumerator();
}
