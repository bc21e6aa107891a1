using System.Collections.Generic;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The layouts of a drawing: the model and sheets of paper.</summary>
public class CadLayoutDictionary : NonGenericDictionary
{
    private readonly NamedObjects<CadLayout> _items;

    internal CadLayoutDictionary()
        : this(new NamedObjects<CadLayout>("layout"))
    {
    }

    private CadLayoutDictionary(NamedObjects<CadLayout> items)
        : base(new NamedEntries<CadLayout>(items))
    {
        _items = items;
    }

    /// <summary>Gets the names, in order.</summary>
    public string[] Names => [.. _items.Items.ConvertAll(static item => item.Key)];

    internal List<CadLayout> Items => _items.Items;

    /// <summary>Gets a layout by its place, from 0.</summary>
    /// <param name="index">The place.</param>
    public CadLayout this[int index] => _items.Items[index];

    /// <summary>Gets a layout by its name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <exception cref="CadException">There is none of this name.</exception>
    public CadLayout this[string name] => Get(name);

    /// <summary>Gives a layout by its name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>What has this name. <see cref="Find"/> gives nothing where there is none.</returns>
    /// <exception cref="CadException">There is none of this name.</exception>
    public CadLayout Get(string name) => Find(name)
        ?? throw new CadException($"The drawing has no layout called '{name}'.");

    /// <summary>Finds a layout; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>What was found, or nothing.</returns>
    public CadLayout? Find(string name) => _items.Find(name);

    /// <summary>Tells whether there is a layout of a name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>Whether there is a layout of a name.</returns>
    public bool Contains(string name) => _items.Find(name) is not null;

    /// <summary>Adds a layout.</summary>
    /// <param name="item">What is added.</param>
    public void Add(CadLayout item) => _items.Add(item);

    /// <summary>Removes a layout.</summary>
    /// <param name="item">What is removed.</param>
    /// <returns>Whether it was there.</returns>
    public bool Remove(CadLayout item) => _items.Remove(item);

    /// <summary>Gives all, in order.</summary>
    /// <returns>All, in order.</returns>
    public List<CadLayout>.Enumerator GetEnumerator() => _items.Items.GetEnumerator();
}
