#include "contents/locate_script.h"

namespace quillmark {

// A button calls Locate with the address of its page, itself and its document. The walk remembers
// the last contents anchor it has seen and stops at the button. The tree identifies its entries by
// addresses relative to the output directory, where the contents page is.
std::string_view locateScript() noexcept {
    return "var bkmark, locatebtn = null ; \n"
           R"js(function getClosestAnchor(lookIn)
{
	if (lookIn == null)
		return false ;
	var nodes = lookIn.childNodes ;
	for (var i = 0 ; nodes && i < nodes.length ; i++)
	{
		var child = nodes[i] ;
		if (child.nodeName == "A" && child.name && child.name.indexOf("toc") == 0)
			bkmark = child ;
		if (child == locatebtn)
			return true ;
		if (getClosestAnchor(child))
			return true ;
	}
	return false ;
}
)js"
           "var _cnturl = location.href, baseurl = null ; \n"
           R"js(function RelativeUrlPath(url)
{
	if (baseurl == null)
	{
		baseurl = _cnturl.split("#")[0].replace('\\', '/') ;
		baseurl = baseurl.substring(0, baseurl.lastIndexOf("/")) ;
	}
	return url.substring(baseurl.length + 1) ;
}
function Locate(url, Obj, docmnt)
{
	if (Obj == null)
		return ;
	locatebtn = Obj ;
	bkmark = null ;
	if (!getClosestAnchor(docmnt) || bkmark == null)
		return ;
	var urlpart = RelativeUrlPath(url.split("#")[0]) + "#" + bkmark.name ;
	document.applets[0].selectItemByUrl(urlpart) ;
}
)js";
}

}  // namespace quillmark
