using System;
using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The variables of a drawing. Names are those of the format and begin with a dollar sign.</summary>
public partial class CadHeader
{
    private readonly Dictionary<string, List<CadCodeValue>> _values = new(StringComparer.OrdinalIgnoreCase);
    private readonly List<string> _names = [];

    internal CadHeader()
    {
    }

    /// <summary>Gets the names of all variables, in the order of the file.</summary>
    public string[] VariableNames => [.. _names];

    /// <summary>Gets or sets the release of the drawing. Changing it changes the release that is saved, as
    /// <see cref="ImageOptions.DxfOptions.Version"/> does for one file. $ACADVER.</summary>
    public CadAcadVersion AcadVersion
    {
        get => DrawingRelease.Parse(GetString("$ACADVER"));
        set => Set("$ACADVER", 1, value.ToString());
    }

    /// <summary>Determines whether the drawing states a variable.</summary>
    /// <param name="name">The name, as in $LTSCALE; upper and lower case are the same.</param>
    /// <returns>Whether the drawing states a variable.</returns>
    public bool Contains(string name) => _values.ContainsKey(name);

    /// <summary>Returns a variable as a number.</summary>
    /// <param name="name">The name, as in $LTSCALE.</param>
    /// <returns>The value, or 0 where the drawing does not state it.</returns>
    /// <exception cref="CadException">The variable is not a number.</exception>
    public double GetDouble(string name) => GetDouble(name, 0);

    /// <summary>Returns a variable as an integer.</summary>
    /// <param name="name">The name, as in $INSUNITS.</param>
    /// <returns>The value, or 0 where the drawing does not state it.</returns>
    /// <exception cref="CadException">The variable is not a number.</exception>
    public int GetInt(string name) => (int)GetDouble(name, 0);

    /// <summary>Returns a variable as a text.</summary>
    /// <param name="name">The name, as in $CLAYER.</param>
    /// <returns>The value, or an empty text where the drawing does not state it.</returns>
    public string GetString(string name)
    {
        return _values.TryGetValue(name, out List<CadCodeValue>? tags) && tags.Count > 0 ? tags[0].Value.Trim() : "";
    }

    /// <summary>Returns a variable as a point.</summary>
    /// <param name="name">The name, as in $EXTMIN.</param>
    /// <returns>A copy of the value; the origin where the drawing does not state it.</returns>
    /// <exception cref="CadException">The variable is no point.</exception>
    public Cad3DPoint GetPoint(string name)
    {
        Cad3DPoint point = new();
        foreach (CadCodeValue tag in _values.GetValueOrDefault(name) ?? [])
        {
            switch (tag.Attribute)
            {
                case 10:
                    point.X = Number(name, tag);
                    break;
                case 20:
                    point.Y = Number(name, tag);
                    break;
                case 30:
                    point.Z = Number(name, tag);
                    break;
            }
        }

        return point;
    }

    /// <summary>Returns the tags of a variable. The list is live: changes change the drawing.</summary>
    /// <param name="name">The name; upper and lower case are the same.</param>
    /// <returns>The tags of a variable.</returns>
    /// <exception cref="CadException">The drawing does not state it.</exception>
    public List<CadCodeValue> GetTags(string name)
    {
        return _values.GetValueOrDefault(name)
            ?? throw new CadException($"The drawing has no variable {name}; use set_tag to add it.");
    }

    /// <summary>Returns the tags of a variable. The list is live: changes change the drawing.</summary>
    /// <param name="variable">The variable.</param>
    /// <returns>The tags of the variable.</returns>
    /// <exception cref="CadException">The drawing does not state it.</exception>
    public List<CadCodeValue> GetVariable(CadHeaderAttribute variable) =>
        GetTags($"${variable.ToString().ToUpperInvariant()}");

    /// <summary>Sets a variable of one tag.</summary>
    /// <param name="name">The name, as in $LTSCALE.</param>
    /// <param name="groupCode">The group code of the value: 40 numbers, 70 integers, 2 or 1 texts.</param>
    /// <param name="value">The text of the value.</param>
    public void SetTag(string name, int groupCode, string value)
    {
        Verify.NotEmpty(name);
        Verify.NotNull(value);
        Set(name, groupCode, value);
    }

    /// <summary>Sets a variable that is a point.</summary>
    /// <param name="name">The name, as in $EXTMAX.</param>
    /// <param name="point">The value.</param>
    public void SetPoint(string name, Cad3DPoint point)
    {
        Verify.NotNull(point);
        List<CadCodeValue> tags = TagsOf(name);
        bool flat = tags.Count == 2;
        tags.Clear();
        tags.Add(new CadCodeValue(10, Text(point.X)));
        tags.Add(new CadCodeValue(20, Text(point.Y)));
        if (!flat)
        {
            tags.Add(new CadCodeValue(30, Text(point.Z)));
        }
    }

    /// <summary>Removes a variable.</summary>
    /// <param name="name">The name.</param>
    /// <returns>Whether the drawing stated it.</returns>
    public bool Remove(string name)
    {
        _names.RemoveAll(known => string.Equals(known, name, StringComparison.OrdinalIgnoreCase));
        return _values.Remove(name);
    }

    internal void Set(string name, int groupCode, string value)
    {
        List<CadCodeValue> tags = TagsOf(name);
        int code = tags.Count > 0 ? tags[0].Attribute : groupCode;
        tags.Clear();
        tags.Add(new CadCodeValue(code, value));
    }

    internal List<CadCodeValue> TagsOf(string name)
    {
        if (!_values.TryGetValue(name, out List<CadCodeValue>? tags))
        {
            tags = new List<CadCodeValue>(1);
            _values.Add(name, tags);
            _names.Add(name);
        }

        return tags;
    }

    internal double GetDouble(string name, double missing)
    {
        return _values.TryGetValue(name, out List<CadCodeValue>? tags) && tags.Count > 0
            ? Number(name, tags[0])
            : missing;
    }

    /// <summary>Returns the names of those variables of one number whose value is none.</summary>
    internal string[] Unreadable(params ReadOnlySpan<string> names)
    {
        List<string> unreadable = [];
        foreach (string name in names)
        {
            if (_values.TryGetValue(name, out List<CadCodeValue>? tags) && tags.Count > 0
                && !(double.TryParse(tags[0].Value, NumberStyles.Float, CultureInfo.InvariantCulture, out double value)
                    && double.IsFinite(value)))
            {
                unreadable.Add(name);
            }
        }

        return [.. unreadable];
    }

    private static double Number(string name, CadCodeValue tag)
    {
        return double.TryParse(tag.Value, NumberStyles.Float, CultureInfo.InvariantCulture, out double value)
            && double.IsFinite(value)
            ? value
            : throw new CadException($"The variable {name} has the value '{tag.Value}'; a finite number was expected.");
    }

    private static string Text(double value) => value.ToString("R", CultureInfo.InvariantCulture);
}
