using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <content>What the drawing states about itself.</content>
public partial class CadHeader
{
    private const int TextCode = 1;

    /// <summary>Gets what the drawing states about itself: its title, its author and the like. Text files of release
    /// 2004 and later have it among the variables.</summary>
    public ISummaryInfo SummaryInfo => new SummaryInfoWrapper(this);

    /// <summary>What a drawing states about itself, in its variables.</summary>
    public sealed class SummaryInfoWrapper : ISummaryInfo
    {
        private readonly CadHeader _header;

        internal SummaryInfoWrapper(CadHeader header)
        {
            _header = header;
        }

        /// <summary>Gets or sets the title; empty for none. $TITLE.</summary>
        public string Title
        {
            get => _header.GetString("$TITLE");
            set => Set("$TITLE", value);
        }

        /// <summary>Gets or sets the subject; empty for none. $SUBJECT.</summary>
        public string Subject
        {
            get => _header.GetString("$SUBJECT");
            set => Set("$SUBJECT", value);
        }

        /// <summary>Gets or sets the author; empty for none. $AUTHOR.</summary>
        public string Author
        {
            get => _header.GetString("$AUTHOR");
            set => Set("$AUTHOR", value);
        }

        /// <summary>Gets or sets the keywords; empty for none. $KEYWORDS.</summary>
        public string Keywords
        {
            get => _header.GetString("$KEYWORDS");
            set => Set("$KEYWORDS", value);
        }

        /// <summary>Gets or sets the comments; empty for none. $COMMENTS.</summary>
        public string Comments
        {
            get => _header.GetString("$COMMENTS");
            set => Set("$COMMENTS", value);
        }

        /// <summary>Gets or sets who saved the drawing; empty where it is not stated. $LASTSAVEDBY.</summary>
        public string LastSavedBy
        {
            get => _header.GetString("$LASTSAVEDBY");
            set => Set("$LASTSAVEDBY", value);
        }

        /// <summary>Gets or sets the number of the revision; empty for none. $REVISIONNUMBER.</summary>
        public string RevisionNumber
        {
            get => _header.GetString("$REVISIONNUMBER");
            set => Set("$REVISIONNUMBER", value);
        }

        /// <summary>Gets or sets the address that relative links start from; empty for none. $HYPERLINKBASE.</summary>
        public string HyperlinkBase
        {
            get => _header.GetString("$HYPERLINKBASE");
            set => Set("$HYPERLINKBASE", value);
        }

        private void Set(string name, string value)
        {
            Verify.NotNull(value);
            if (value.Length == 0)
            {
                _header.Remove(name);
                return;
            }

            _header.Set(name, TextCode, value);
        }
    }
}
