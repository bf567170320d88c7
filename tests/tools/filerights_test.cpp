// The rights of a PDF that replaces another.

#include "toolbench.h"

#include <QTest>

#include <linux/posix_acl.h>
#include <linux/posix_acl_xattr.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class FileRightsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void accessListIsKept();
    void noListIsTakenFromTheFolder();
    void attributesOfTheUserAreKept();
    void ownerIsKeptForRoot();
    void groupThatCannotBeKeptLosesItsRights_data();
    void groupThatCannotBeKeptLosesItsRights();

private:
    QByteArray path(const char *name) const { return m_folder->path().toUtf8() + "/" + name; }
    RunResult replace(const QStringList &prefix = {}) const;
    QByteArray attributeOf(const char *name) const;
    struct stat statusOf() const;

    // Not in memory, where older kernels know no attributes of the user.
    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

constexpr unsigned other = 65534;
constexpr const char *accessList = "system.posix_acl_access";

// Another user may read and write, as far as `mask` lets; the owner's group may do nothing.
QByteArray listOf(unsigned short mask, unsigned short ofOwner = ACL_READ | ACL_WRITE)
{
    struct
    {
        posix_acl_xattr_header header = {POSIX_ACL_XATTR_VERSION};
        std::array<posix_acl_xattr_entry, 5> entries;
    } list;
    constexpr unsigned short all = ACL_READ | ACL_WRITE;
    constexpr unsigned nobody = ACL_UNDEFINED_ID;
    list.entries = {{{ACL_USER_OBJ, ofOwner, nobody},
                     {ACL_USER, all, other},
                     {ACL_GROUP_OBJ, 0, nobody},
                     {ACL_MASK, mask, nobody},
                     {ACL_OTHER, 0, nobody}}};
    return {reinterpret_cast<const char *>(&list), sizeof list};
}

void setAttribute(const QByteArray &path, const char *name, const QByteArray &value)
{
    QCOMPARE(setxattr(path.constData(), name, value.constData(), size_t(value.size()), 0), 0);
}

// Root's own user without root's rights.
const QStringList withoutRights = {u"/usr/bin/setpriv"_s, u"--bounding-set=-all"_s,
                                   u"--inh-caps=-all"_s, u"--clear-groups"_s};

} // namespace

void FileRightsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>(u"/var/tmp/filerights_test-XXXXXX"_s);
    makeImage(m_folder->filePath(u"x.png"_s));
    writeContent(m_folder->filePath(u"o.pdf"_s), "older");
}

RunResult FileRightsTest::replace(const QStringList &prefix) const
{
    QStringList command = prefix + QStringList{bundledTool(u"convert"_s), u"x.png"_s, u"o.pdf"_s};
    const QString program = command.takeFirst();
    RunResult result = runProgram(program, command, m_folder->path());
    if (!contentOf(m_folder->filePath(u"o.pdf"_s)).startsWith("%PDF-"))
        result.errors += "not replaced";
    return result;
}

QByteArray FileRightsTest::attributeOf(const char *name) const
{
    QByteArray value(1000, '\0');
    const ssize_t length =
        getxattr(path("o.pdf").constData(), name, value.data(), size_t(value.size()));
    return value.left(std::max<qsizetype>(length, 0));
}

struct stat FileRightsTest::statusOf() const
{
    struct stat status = {};
    stat(path("o.pdf").constData(), &status);
    return status;
}

void FileRightsTest::accessListIsKept()
{
    setAttribute(path("o.pdf"), accessList, listOf(ACL_READ));
    QCOMPARE(replace().errors, QByteArray());
    QCOMPARE(attributeOf(accessList), listOf(ACL_READ));
    QCOMPARE(statusOf().st_mode & 0777, 0640U);
}

void FileRightsTest::noListIsTakenFromTheFolder()
{
    QCOMPARE(chmod(path("o.pdf").constData(), 0640), 0);
    constexpr unsigned short all = ACL_READ | ACL_WRITE;
    setAttribute(path("."), "system.posix_acl_default", listOf(all, all | ACL_EXECUTE));
    QCOMPARE(replace().errors, QByteArray());
    QCOMPARE(attributeOf(accessList), QByteArray());
    QCOMPARE(statusOf().st_mode & 0777, 0640U);
}

void FileRightsTest::attributesOfTheUserAreKept()
{
    setAttribute(path("o.pdf"), "user.rating", "5");
    setAttribute(path("o.pdf"), "user.tags", QByteArray("home\0work", 9));
    QCOMPARE(replace().errors, QByteArray());
    QCOMPARE(attributeOf("user.rating"), QByteArray("5"));
    QCOMPARE(attributeOf("user.tags"), QByteArray("home\0work", 9));
}

void FileRightsTest::ownerIsKeptForRoot()
{
    const bool isRoot = geteuid() == 0;
    const uid_t owner = isRoot ? other : geteuid();
    QCOMPARE(chown(path("o.pdf").constData(), owner, isRoot ? other : getegid()), 0);
    QCOMPARE(replace().errors, QByteArray());
    QCOMPARE(statusOf().st_uid, owner);
}

void FileRightsTest::groupThatCannotBeKeptLosesItsRights_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<unsigned>("before");
    QTest::addColumn<unsigned>("after");
    QTest::newRow("by its mode") << QByteArray() << 0660U << 0600U;
    QTest::newRow("by its mode, as everybody") << QByteArray() << 0664U << 0604U;
    QTest::newRow("by a list") << listOf(ACL_READ | ACL_WRITE) << 0660U << 0600U;
}

void FileRightsTest::groupThatCannotBeKeptLosesItsRights()
{
    if (geteuid() != 0)
        QSKIP("only root can make a file of a group that is not its own");
    QFETCH(QByteArray, list);
    QFETCH(unsigned, before);
    QFETCH(unsigned, after);
    if (!list.isEmpty())
        setAttribute(path("o.pdf"), accessList, list);
    QCOMPARE(chown(path("o.pdf").constData(), 0, other), 0);
    QCOMPARE(chmod(path("o.pdf").constData(), before), 0);
    QCOMPARE(replace(withoutRights).errors, QByteArray());
    QCOMPARE(statusOf().st_gid, 0U);
    QCOMPARE(statusOf().st_mode & 0777, after);
    QCOMPARE(attributeOf(accessList), QByteArray());
}

QTEST_GUILESS_MAIN(FileRightsTest)
#include "filerights_test.moc"
