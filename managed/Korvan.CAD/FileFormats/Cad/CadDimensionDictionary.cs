using System.Collections.Generic;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The dimension styles of a drawing.</summary>
public class CadDimensionDictionary : NonGenericDictionary
{
    private readonly NamedObjects<CadDimensionStyleTable> _items;

    internal CadDimensionDictionary()
        : this(new NamedObjects<CadDimensionStyleTable>("dimension style"))
    {
    }

    private CadDimensionDictionary(NamedObjects<CadDimensionStyleTable> items)
        : base(new NamedEntries<CadDimensionStyleTable>(items))
    {
        _items = items;
    }

    /// <summary>Gets the names, in order.</summary>
    public string[] Names => [.. _items.Items.ConvertAll(static item => item.Key)];

    internal List<CadDimensionStyleTable> Items => _items.Items;

    /// <summary>Gets a dimension style by its place, from 0.</summary>
    /// <param name="index">The place.</param>
    public CadDimensionStyleTable this[int index] => _items.Items[index];

    /// <summary>Gets a dimension style by its name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <exception cref="CadException">There is none of this name.</exception>
    public CadDimensionStyleTable this[string name] => Get(name);

    /// <summary>Gives a dimension style by its name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>What has this name. <see cref="Find"/> gives nothing where there is none.</returns>
    /// <exception cref="CadException">There is none of this name.</exception>
    public CadDimensionStyleTable Get(string name) => Find(name)
        ?? throw new CadException($"The drawing has no dimension style called '{name}'.");

    /// <summary>Finds a dimension style; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>What was found, or nothing.</returns>
    public CadDimensionStyleTable? Find(string name) => _items.Find(name);

    /// <summary>Tells whether there is a dimension style of a name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>Whether there is a dimension style of a name.</returns>
    public bool Contains(string name) => _items.Find(name) is not null;

    /// <summary>Adds a dimension style.</summary>
    /// <param name="item">What is added.</param>
    public void Add(CadDimensionStyleTable item) => _items.Add(item);

    /// <summary>Removes a dimension style.</summary>
    /// <param name="item">What is removed.</param>
    /// <returns>Whether it was there.</returns>
    public bool Remove(CadDimensionStyleTable item) => _items.Remove(item);

    /// <summary>Gives all, in order.</summary>
    /// <returns>All, in order.</returns>
    public List<CadDimensionStyleTable>.Enumerator GetEnumerator() => _items.Items.GetEnumerator();
}
